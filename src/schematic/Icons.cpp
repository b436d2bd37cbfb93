#include "schematic/Icons.h"

#include <cmath>
#include <initializer_list>
#include <vector>

#include "core/ElementTypes.h"

namespace quilm {

namespace {

const f32 pi = static_cast<f32>(Pi);

// Draws a sign stroke by stroke.
class Strokes {
 public:
  explicit Strokes(Picture& picture) : picture_(picture) {}

  const Strokes& Path(std::initializer_list<Point> points) const {
    picture_.Polyline(std::vector<Point>(points), colorBlack);
    return *this;
  }
  const Strokes& Box(f32 x1, f32 y1, f32 x2, f32 y2) const {
    return Path({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}, {x1, y1}});
  }
  const Strokes& Arc(f32 x, f32 y, f32 r, f32 start = 0, f32 stop = 0) const {
    picture_.Circle(x, y, r, colorBlack, start, stop);
    return *this;
  }
  // Turns of a coil along a row.
  const Strokes& Coil(f32 x, f32 y, f32 r, int turns) const {
    for (int i = 0; i < turns; ++i) Arc(x + r + 2 * r * static_cast<f32>(i), y, r, 0, pi);
    return *this;
  }
  const Strokes& Plates(f32 x, f32 y, f32 half) const {
    return Path({{x - 50, y - half}, {x - 50, y + half}}).Path({{x + 50, y - half}, {x + 50, y + half}});
  }
  const Strokes& ArrowRight(f32 x, f32 y, f32 size) const {
    return Path({{x - size, y - size}, {x, y}, {x - size, y + size}});
  }
  const Strokes& ArrowLeft(f32 x, f32 y, f32 size) const {
    return Path({{x + size, y - size}, {x, y}, {x + size, y + size}});
  }
  const Strokes& ArrowDown(f32 x, f32 y, f32 size) const {
    return Path({{x - size, y - size}, {x, y}, {x + size, y - size}});
  }

 private:
  Picture& picture_;
};

void DrawPageSign(const Strokes& s, Sign sign) {
  switch (sign) {
    case Sign::Design:  // a rule and a pencil
      s.Path({{150, 850}, {150, 650}, {650, 150}, {850, 350}, {350, 850}, {150, 850}}).Path({{560, 240}, {760, 440}});
      break;
    case Sign::Schematic:
      s.Path({{60, 350}, {200, 350}}).Coil(200, 350, 100, 3).Path({{800, 350}, {940, 350}});
      s.Path({{500, 350}, {500, 560}}).Path({{340, 560}, {660, 560}}).Path({{340, 660}, {660, 660}});
      s.Path({{500, 660}, {500, 820}}).Path({{380, 820}, {620, 820}});
      break;
    case Sign::Edit:
      s.Box(150, 250, 700, 850).Path({{430, 600}, {480, 420}, {850, 90}, {930, 180}, {590, 540}, {430, 600}});
      break;
    case Sign::Analysis:  // three sliders
      for (const f32 x : {220.0F, 500.0F, 780.0F}) s.Path({{x, 120}, {x, 880}});
      s.Box(130, 560, 310, 680).Box(410, 260, 590, 380).Box(690, 640, 870, 760);
      break;
    case Sign::Plot:
      s.Path({{130, 100}, {130, 870}, {920, 870}}).Path({{190, 260}, {480, 260}, {600, 420}, {720, 720}, {900, 790}});
      break;
    case Sign::Tabulate:
      s.Box(110, 150, 890, 850)
          .Path({{110, 380}, {890, 380}})
          .Path({{110, 620}, {890, 620}})
          .Path({{420, 150}, {420, 850}});
      break;
    default:
      break;
  }
}

void DrawActionSign(const Strokes& s, Sign sign) {
  switch (sign) {
    case Sign::Get:  // an open folder
      s.Path({{90, 820}, {90, 200}, {380, 200}, {470, 310}, {800, 310}, {800, 430}});
      s.Path({{90, 820}, {260, 430}, {940, 430}, {780, 820}, {90, 820}});
      break;
    case Sign::Save:  // onto a disk
      s.Path({{140, 140}, {720, 140}, {860, 280}, {860, 860}, {140, 860}, {140, 140}});
      s.Box(320, 140, 660, 360).Box(290, 540, 710, 860);
      break;
    case Sign::Write:  // a sheet that leaves
      s.Path({{560, 880}, {160, 880}, {160, 120}, {500, 120}, {700, 320}, {700, 480}})
          .Path({{500, 120}, {500, 320}, {700, 320}});
      s.Path({{440, 660}, {930, 660}}).ArrowRight(930, 660, 130);
      break;
    case Sign::Print:
      s.Path({{280, 380}, {280, 110}, {720, 110}, {720, 380}})
          .Path({{280, 700}, {110, 700}, {110, 380}, {890, 380}, {890, 700}, {720, 700}});
      s.Box(280, 570, 720, 890);
      break;
    case Sign::Help:
      s.Arc(500, 350, 200, 1.75F * pi, pi).Path({{640, 490}, {500, 610}, {500, 700}}).Arc(500, 840, 30);
      break;
    case Sign::About:
      s.Arc(500, 500, 390).Path({{500, 450}, {500, 720}}).Arc(500, 310, 25);
      break;
    case Sign::Exit:  // out of a door
      s.Path({{560, 300}, {560, 120}, {150, 120}, {150, 880}, {560, 880}, {560, 700}});
      s.Path({{360, 500}, {920, 500}}).ArrowRight(920, 500, 150);
      break;
    case Sign::Title:
      s.Path({{200, 260}, {200, 160}, {800, 160}, {800, 260}})
          .Path({{500, 160}, {500, 840}})
          .Path({{390, 840}, {610, 840}});
      break;
    case Sign::Info:
      s.Box(140, 140, 860, 860)
          .Path({{280, 340}, {720, 340}})
          .Path({{280, 500}, {720, 500}})
          .Path({{280, 660}, {540, 660}});
      break;
    case Sign::Normalized:  // one
      s.Box(120, 120, 880, 880).Path({{400, 380}, {520, 270}, {520, 730}}).Path({{400, 730}, {640, 730}});
      break;
    case Sign::Manual:  // a hand-made list of parts
      s.Coil(100, 320, 90, 3).Plates(820, 280, 130).Path({{120, 560}, {880, 560}}).Path({{120, 760}, {620, 760}});
      break;
    default:
      break;
  }
}

void DrawToolSign(const Strokes& s, Sign sign) {
  switch (sign) {
    case Sign::Nearest5:  // a value between marks
      s.Path({{80, 640}, {920, 640}});
      for (const f32 x : {140.0F, 380.0F, 620.0F, 860.0F}) s.Path({{x, 640}, {x, 820}});
      s.Path({{450, 180}, {450, 360}, {380, 560}}).ArrowDown(385, 580, 100);
      break;
    case Sign::SpecifyL:
      s.Path({{60, 640}, {140, 640}})
          .Coil(140, 640, 120, 3)
          .Path({{860, 640}, {940, 640}})
          .Path({{500, 120}, {500, 400}})
          .ArrowDown(500, 420, 110);
      break;
    case Sign::SwapEnds:
      s.Path({{140, 360}, {880, 360}})
          .ArrowRight(880, 360, 150)
          .Path({{120, 660}, {860, 660}})
          .ArrowLeft(120, 660, 150);
      break;
    case Sign::SinglyTerm:  // a resistor at one end alone
      s.Path({{120, 240},
              {800, 240},
              {800, 320},
              {720, 370},
              {880, 450},
              {720, 530},
              {880, 610},
              {800, 660},
              {800, 760},
              {120, 760}});
      break;
    case Sign::Diplexer:  // one way becomes two
      s.Path({{60, 500}, {360, 500}, {620, 240}, {940, 240}}).Path({{360, 500}, {620, 760}, {940, 760}});
      break;
    case Sign::Tubular:
      s.Path({{60, 500}, {160, 500}})
          .Box(160, 330, 840, 670)
          .Path({{400, 330}, {400, 670}})
          .Path({{600, 330}, {600, 670}})
          .Path({{840, 500}, {940, 500}});
      break;
    case Sign::ZMatch:
      s.Path({{240, 160}, {760, 160}, {240, 840}, {760, 840}});
      break;
    case Sign::WindL:
      s.Path({{60, 640}, {140, 640}})
          .Coil(140, 640, 90, 4)
          .Path({{860, 640}, {940, 640}})
          .Path({{140, 740}, {860, 740}});
      break;
    case Sign::FindL:
      s.Coil(90, 480, 90, 3).Arc(600, 420, 250).Path({{780, 600}, {930, 800}});
      break;
    case Sign::Bisection:
      s.Box(120, 280, 880, 720)
          .Path({{500, 100}, {500, 240}})
          .Path({{500, 330}, {500, 470}})
          .Path({{500, 560}, {500, 700}})
          .Path({{500, 780}, {500, 900}});
      break;
    case Sign::EndSections:
      s.Box(330, 320, 670, 680)
          .Box(80, 400, 240, 600)
          .Box(760, 400, 920, 600)
          .Path({{240, 500}, {330, 500}})
          .Path({{670, 500}, {760, 500}});
      break;
    case Sign::Toroid:
      s.Arc(500, 500, 390).Arc(500, 500, 190);
      for (const f32 turn : {0.25F, 0.75F, 1.25F, 1.75F}) {
        const f32 c = std::cos(turn * pi);
        const f32 t = std::sin(turn * pi);
        s.Path({{500 + 150 * c, 500 - 150 * t}, {500 + 440 * c, 500 - 440 * t}});
      }
      break;
    case Sign::Norton:
      s.Path({{60, 360}, {330, 360}})
          .Plates(380, 360, 160)
          .Path({{430, 360}, {560, 360}})
          .Path({{690, 180}, {690, 820}})
          .Path({{840, 180}, {840, 820}});
      break;
    case Sign::TeeToPi:
      s.Path({{80, 260}, {420, 260}})
          .Path({{250, 260}, {250, 760}})
          .Path({{560, 260}, {940, 260}})
          .Path({{640, 260}, {640, 760}})
          .Path({{860, 260}, {860, 760}});
      break;
    default:
      break;
  }
}

// ---- curves ---------------------------------------------------------------------------------------------------------

constexpr f32 curveWidth = 1600;
constexpr f32 curveHeight = 1000;
constexpr Point center{800, 500};

using Curve = f32 (*)(f32 x);  // 0..1 to the right gives 0..1 upward

f32 Passing(f32 x) { return 0.88F / (1 + std::pow(x / 0.55F, 9.0F)) + 0.04F; }
f32 Returning(f32 x) { return x > 0.55F ? 0.9F - 0.12F * (1 - x) : 0.42F + 0.3F * std::cos(x * 26) - 0.1F * x; }
f32 Turning(f32 x) { return 1 - std::fmod(x * 2.2F + 0.15F, 1.0F); }
f32 Delaying(f32 x) { return 0.2F + 0.6F * std::exp(-std::pow((x - 0.52F) / 0.13F, 2.0F)); }
f32 Standing(f32 x) { return x < 0.6F ? 0.14F + 0.1F * (1 - std::cos(x * 31)) / 2 : 0.14F + 4 * (x - 0.6F); }
f32 Impeding(f32 x) { return 0.3F + 0.12F * std::sin(x * 15) + 0.5F * std::exp(-std::pow((x - 0.65F) / 0.07F, 2.0F)); }
f32 ImpedanceAngle(f32 x) { return 0.5F + 0.34F * std::sin(x * 9 + 0.4F) * (1 - 0.4F * x); }
f32 RealPart(f32 x) { return 0.16F + 0.62F * std::exp(-std::pow((x - 0.5F) / 0.13F, 2.0F)); }
f32 ImaginaryPart(f32 x) { return 0.5F - 2.2F * (x - 0.5F) * std::exp(-std::pow((x - 0.5F) / 0.2F, 2.0F)); }

void DrawCurve(Picture& picture, Curve curve, Color color) {
  std::vector<Point> points;
  constexpr int steps = 64;
  for (int i = 0; i <= steps; ++i) {
    const f32 x = static_cast<f32>(i) / steps;
    const f32 y = std::fmin(std::fmax(curve(x), 0.03F), 0.97F);
    points.push_back({60 + x * (curveWidth - 120), curveHeight - 60 - y * (curveHeight - 120)});
  }
  picture.Polyline(points, color);
}

// A trace that winds about the middle of a round chart.
void DrawSpiral(Picture& picture, f32 radius, Color color) {
  std::vector<Point> points;
  for (int i = 0; i <= 60; ++i) {
    const f32 t = static_cast<f32>(i) / 60;
    const f32 r = radius * (0.25F + 0.65F * t);
    points.push_back({center.x + r * std::cos(t * 8), center.y - r * std::sin(t * 8)});
  }
  picture.Polyline(points, color);
}

void DrawRoundChart(Picture& picture, bool smith) {
  constexpr f32 r = 430;
  picture.Circle(center.x, center.y, r, colorBlack);
  picture.Line(center.x - r, center.y, center.x + r, center.y, colorBlack);
  if (smith) {
    picture.Circle(center.x + r / 2, center.y, r / 2, colorBlack);
    picture.Circle(center.x + r, center.y - r, r, colorBlack, pi, 1.5F * pi);
    picture.Circle(center.x + r, center.y + r, r, colorBlack, 0.5F * pi, pi);
  } else {
    picture.Circle(center.x, center.y, r / 2, colorBlack);
    picture.Line(center.x, center.y - r, center.x, center.y + r, colorBlack);
  }
  DrawSpiral(picture, r, colorBlue);
}

struct CurvePair {
  Curve first;
  Curve second;
};

CurvePair CurvesOf(int plotButton) {
  switch (plotButton) {
    case 1:
      return {Passing, nullptr};
    case 2:
      return {Passing, Returning};
    case 3:
      return {Turning, Passing};
    case 4:
      return {Delaying, Passing};
    case 5:
      return {Standing, nullptr};
    case 6:
      return {Standing, Passing};
    case 7:
      return {Impeding, nullptr};
    case 8:
      return {Impeding, Passing};
    case 9:
      return {Impeding, ImpedanceAngle};
    case 10:
      return {RealPart, ImaginaryPart};
    default:
      return {nullptr, nullptr};
  }
}

}  // namespace

Picture SignPicture(Sign sign) {
  Picture picture(Scale{0, 0, 1000, 1000});
  const Strokes strokes(picture);
  DrawPageSign(strokes, sign);
  DrawActionSign(strokes, sign);
  DrawToolSign(strokes, sign);
  return picture;
}

Picture CurvePicture(int plotButton) {
  Picture picture(Scale{0, 0, curveWidth, curveHeight});
  if (plotButton >= 11) {
    DrawRoundChart(picture, plotButton == 11);
    return picture;
  }
  constexpr Color grid = 0x999999;
  picture.Rectangle(60, 60, curveWidth - 60, curveHeight - 60, grid, false);
  const CurvePair curves = CurvesOf(plotButton);
  picture.DrawWidth = 2;
  if (curves.second != nullptr) DrawCurve(picture, curves.second, colorRed);
  if (curves.first != nullptr) DrawCurve(picture, curves.first, colorBlue);
  return picture;
}

}  // namespace quilm
