// The limit areas as they are worked with: one at a time, out of the tables of the record and back.
#pragma once

#include "core/LimitsAndMarkers.h"

namespace quilm {

// A rectangle of a plot that a response must stay out of.
struct LimitArea {
  f32 shape = 0;  // 1..9 (ShapeOf)
  f32 start = 0;  // Hz; the edges stand as they were entered, start above stop too
  f32 stop = 0;   // Hz
  f32 top = 0;    // upper and lower edge, in the unit of the plot type
  f32 bottom = 0;
  bool operator==(const LimitArea&) const = default;
};

// What stands for "from DC" and for "upward" in an area.
inline constexpr f32 lowestLimitFrequency = 0.01F;  // Hz
inline constexpr f32 highestLimitFrequency = 1e10F;

// The nine shapes. A floor forbids what lies below a value, a ceiling what lies above it.
inline constexpr int limitShapes = 9;

// How far along the frequencies a shape reaches, from the place that is pointed at.
enum class LimitReach { FromDC, Upward, Band, Single };
enum class LimitSide { Floor, Ceiling, Point };

struct LimitShapeRow {
  LimitReach reach;
  LimitSide side;
};

// Of a shape 1..9. Throws BoundFault for others, as a damaged file may hold them.
const LimitShapeRow& ShapeOf(f32 shape);

// Area j, 1..10, of a plot type, 1..6. All of these throw BoundFault for other indices.
LimitArea AreaAt(const LimitsAndMarkers& limits, int type, int j);
void SetArea(LimitsAndMarkers& limits, int type, int j, const LimitArea& area);

// Puts an area behind those of the type. False when the type has as many as it can: nothing changes then.
bool AddArea(LimitsAndMarkers& limits, int type, const LimitArea& area);

// Whether any plot type has an area.
bool HasAreas(const LimitsAndMarkers& limits);

// Takes the areas of one type away, or those of all.
void EraseAreas(LimitsAndMarkers& limits, int type);
void EraseAllAreas(LimitsAndMarkers& limits);

}  // namespace quilm
