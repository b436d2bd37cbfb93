#include "script/Json.h"
#include "shell/Control.h"

namespace quilm {

namespace {

// Most operations show on the screen and on paper alike.
void AddMedium(Json& json, Medium medium) {
  if (medium != Medium::Everywhere) json["on"] = medium == Medium::Screen ? "screen" : "paper";
}

void AddPen(Json& json, const Pen& pen) {
  json["color"] = pen.color;
  json["DrawWidth"] = pen.width;
  json["DrawStyle"] = static_cast<int>(pen.style);
  json["DrawMode"] = static_cast<int>(pen.mode);
  AddMedium(json, pen.showOn);
}

void AddCorners(Json& json, Point from, Point to) {
  json["x1"] = NumberJson(from.x);
  json["y1"] = NumberJson(from.y);
  json["x2"] = NumberJson(to.x);
  json["y2"] = NumberJson(to.y);
}

void AddPlace(Json& json, Point at) {
  json["x"] = NumberJson(at.x);
  json["y"] = NumberJson(at.y);
}

Json ToJson(const PolylineOp& op) {
  if (op.points.size() == 2) {
    Json line{{"op", "Line"}};
    AddCorners(line, op.points[0], op.points[1]);
    AddPen(line, op.pen);
    return line;
  }
  Json points = Json::array();
  for (const Point p : op.points) points.push_back({NumberJson(p.x), NumberJson(p.y)});
  Json trace{{"op", "Polyline"}, {"points", std::move(points)}};
  AddPen(trace, op.pen);
  return trace;
}

Json ToJson(const RectangleOp& op) {
  Json json{{"op", "Rectangle"}};
  AddCorners(json, op.from, op.to);
  json["filled"] = op.filled;
  AddPen(json, op.pen);
  return json;
}

Json ToJson(const CircleOp& op) {
  Json json{{"op", "Circle"}};
  AddPlace(json, op.center);
  json["r"] = NumberJson(op.r);
  json["start"] = NumberJson(op.start);
  json["stop"] = NumberJson(op.stop);
  json["aspect"] = NumberJson(op.aspect);
  AddPen(json, op.pen);
  return json;
}

Json ToJson(const PointOp& op) {
  Json json{{"op", "PSet"}};
  AddPlace(json, op.at);
  AddPen(json, op.pen);
  return json;
}

Json ToJson(const TextOp& op) {
  Json json{{"op", "Print"}};
  AddPlace(json, op.at);
  json["text"] = op.text;
  json["color"] = op.color;
  json["FontName"] = op.font.name;
  json["FontSize"] = NumberJson(op.font.size);
  json["FontBold"] = op.font.bold;
  AddMedium(json, op.showOn);
  return json;
}

template <class Operations>
Json ListOf(const Operations& list) {
  Json operations = Json::array();
  for (const PictureOp& operation : list) {
    operations.push_back(std::visit([](const auto& op) { return ToJson(op); }, operation));
  }
  return operations;
}

Json ToJson(const HitArea& area) {
  Json json{{"name", area.name}};
  AddCorners(json, area.from, area.to);
  json["enabled"] = area.enabled;
  json["toolTip"] = area.toolTip;
  return json;
}

}  // namespace

Json CanvasEvent(const PictureBox& box) {
  Json areas = Json::array();
  for (const HitArea& area : box.areas) areas.push_back(ToJson(area));
  return {{"event", "canvas"},
          {"name", box.name},
          {"operations", ListOf(box.picture.Operations())},
          {"live", ListOf(box.live.Present().kept)},
          {"mark", ListOf(box.mark.Operations())},
          {"areas", std::move(areas)}};
}

Json CanvasEvent(const Button& button) {
  return {{"event", "canvas"},     {"name", button.name},   {"operations", ListOf(button.picture.Operations())},
          {"live", Json::array()}, {"mark", Json::array()}, {"areas", Json::array()}};
}

}  // namespace quilm
