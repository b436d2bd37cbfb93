#include "pages/plot/frmEditLimits.h"

#include <algorithm>
#include <array>

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "display/LimitDrawing.h"
#include "display/SheetDrawing.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr int delayType = 4;

const char* TypeName(int type) {
  static constexpr std::array<const char*, plotTypes> names = {"Transmission", "Return", "Angle",
                                                               "Delay",        "VSWR",   "Input impedance"};
  return names.at(static_cast<std::size_t>(type - 1));
}

Formatter FormatOf(int type) { return type == delayType ? FormatTime : FormatValue; }

std::string Padded(std::string text, std::size_t width) {
  text.resize(std::max(text.size(), width), ' ');
  return text;
}

// What a file holds for an edge that an area does not have.
constexpr f32 noEdge = 1e11F;

std::string EdgeText(const char* name, f32 value, f32 none, Formatter format) {
  return name + (value == none ? std::string(" --- ") : format(value));
}

std::string FrequencyText(const LimitArea& area) {
  if (area.start == area.stop) return " Marker at " + FormatFrequency(area.start);
  if (area.start == lowestLimitFrequency) return "DC up to " + FormatFrequency(area.stop);
  std::string text = "from " + FormatFrequency(area.start) + "to " + FormatFrequency(area.stop);
  const std::string highest = " 10G ";
  const std::size_t at = text.find(highest);
  return at == std::string::npos ? text : text.replace(at, highest.size(), " upward");
}

bool HasUpper(const LimitArea& area) { return ShapeOf(area.shape).side != LimitSide::Ceiling; }
bool HasLower(const LimitArea& area) { return ShapeOf(area.shape).side != LimitSide::Floor; }
bool IsPoint(const LimitArea& area) { return ShapeOf(area.shape).side == LimitSide::Point; }
bool IsSingle(const LimitArea& area) { return area.start == area.stop; }

bool IsKnownShape(f32 shape) { return shape >= 1 && shape <= limitShapes; }

}  // namespace

std::string LimitLine(int type, const LimitArea& area) {
  constexpr std::size_t nameColumns = 18;
  constexpr std::size_t shapeEnds = 28;
  constexpr std::size_t frequenciesEnd = 56;
  constexpr std::size_t topEnds = 72;
  std::string line = Padded(TypeName(type), nameColumns) + "Shape: " + PlainText(area.shape);
  line = Padded(line, shapeEnds) + FrequencyText(area) + " ";
  line = Padded(line, frequenciesEnd) + EdgeText("top: ", area.top, noEdge, FormatOf(type));
  return Padded(line, topEnds) + EdgeText("bottom: ", area.bottom, -noEdge, FormatOf(type));
}

frmEditLimits::frmEditLimits(Session& session) : Page(session, PageId::EditLimits, "Edit limits") {
  for (int shape = 1; shape <= limitShapes; ++shape) {
    auto box = std::make_unique<PictureBox>(*this, "cmdShape" + std::to_string(shape), LimitShapeName(shape));
    box->picture = LimitShapePicture(shape);
    shapePictures.push_back(std::move(box));
  }
  BindBoxes(1);
  lstSelect.fixedPitch = true;
  lstSelect.onClick = [this] { Choose(); };
  cmdAccept.onClick = [this] { Accept(); };
  cmdExit.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdAccept;
  cancelButton = &cmdExit;
}

void frmEditLimits::Load() {
  FillList();
  lstSelect.selected = 0;
  ShowEditor(nullptr);
  SetFocus(lstSelect);
}

void frmEditLimits::FillList() {
  rows_.clear();
  lstSelect.items.clear();
  const LimitsAndMarkers& limits = session_.record;
  for (int type = 1; type <= plotTypes; ++type) {
    for (int j = 1; j <= limits.LimitCount[type]; ++j) {
      rows_.push_back({type, j});
      lstSelect.items.push_back(LimitLine(type, AreaAt(limits, type, j)));
    }
  }
}

// The boxes that apply to an area, or none.
void frmEditLimits::ShowEditor(const LimitArea* area) {
  lblNone.visible = rows_.empty();
  lblIdle.visible = !rows_.empty() && area == nullptr;
  lblEdit.visible = area != nullptr;
  cmdAccept.enabled = area != nullptr;
  for (std::size_t i = 0; i < shapePictures.size(); ++i) {
    shapePictures[i]->visible = area != nullptr && area->shape == static_cast<f32>(i + 1);
  }
  const auto show = [](Label& label, TextBox& box, bool applies) { label.visible = box.visible = applies; };
  show(lblStart, txtStart, area != nullptr && area->start > lowestLimitFrequency);
  show(lblStop, txtStop, area != nullptr && area->stop < highestLimitFrequency && !IsSingle(*area));
  show(lblUpper, txtUpper, area != nullptr && HasUpper(*area));
  show(lblLower, txtLower, area != nullptr && HasLower(*area));
}

void frmEditLimits::Choose() {
  const Listed& row = rows_.at(static_cast<std::size_t>(lstSelect.selected - 1));
  edited_ = AreaAt(session_.record, row.type, row.j);
  if (!IsKnownShape(edited_.shape)) {
    ShowEditor(nullptr);
    session_.note = "This area has no shape that could be edited";
    return;
  }
  BindBoxes(row.type);
  entries.Fill();
  ShowEditor(&edited_);
}

// Values are shown in the unit of the plot type.
void frmEditLimits::BindBoxes(int type) {
  const Formatter format = FormatOf(type);
  entries.All().clear();
  entries.Bind(
      {.box = txtStart, .field = edited_.start, .format = FormatFrequency, .onTaken = [this] { TakeFrequency(); }});
  entries.Bind({.box = txtStop, .field = edited_.stop, .format = FormatFrequency});
  entries.Bind({.box = txtUpper, .field = edited_.top, .format = format, .onTaken = [this] {
                  TakeValue(edited_.top, edited_.bottom, txtLower);
                }});
  entries.Bind({.box = txtLower, .field = edited_.bottom, .format = format, .onTaken = [this] {
                  TakeValue(edited_.bottom, edited_.top, txtUpper);
                }});
}

// Of a single frequency the box that shows is both edges.
void frmEditLimits::TakeFrequency() {
  if (!txtStop.visible && edited_.stop < highestLimitFrequency) edited_.stop = edited_.start;
}

// Of a point the value that was changed is both edges.
void frmEditLimits::TakeValue(const f32& from, f32& to, TextBox& box) {
  if (!IsPoint(edited_)) return;
  to = from;
  for (Entry& entry : entries.All()) {
    if (&entry.Box() == &box) entry.Fill();
  }
}

void frmEditLimits::Accept() {
  const Listed row = rows_.at(static_cast<std::size_t>(lstSelect.selected - 1));
  SetArea(session_.record, row.type, row.j, edited_);
  FillList();
  entries.Fill();
  ShowEditor(&edited_);
  RedrawPlot(session_);
}

Layout frmEditLimits::MakeLayout() {
  std::vector<Layout> pictures;
  for (const auto& box : shapePictures) pictures.push_back(Put(*box));
  const Layout values = Form({{Put(lblStart), Put(txtStart)},
                              {Put(lblStop), Put(txtStop)},
                              {Put(lblUpper), Put(txtUpper)},
                              {Put(lblLower), Put(txtLower)}});
  return Column({Put(lblNone), Put(lblIdle), Put(lblEdit), Fill(Put(lstSelect)),
                 Row({Column(std::move(pictures)), values, Space()}), Row({Space(), Put(cmdAccept), Put(cmdExit)})});
}

}  // namespace quilm
