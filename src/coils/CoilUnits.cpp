#include "coils/CoilUnits.h"

#include "core/modGeneral.h"

namespace quilm {

namespace {

std::string Text(f64 value) { return Trimmed(FormatValue(static_cast<f32>(value))); }

}  // namespace

std::string UnitName(i16 units) { return units == metricUnits ? "cm" : "in"; }

f64 UnitsPerInch(i16 units) { return units == metricUnits ? 2.54 : 1; }

std::string LengthText(f32 inches, i16 units) { return Text(static_cast<f64>(inches) * UnitsPerInch(units)); }

std::string TurnsPerUnitText(f32 turnsPerInch, i16 units) {
  return Text(static_cast<f64>(turnsPerInch) / UnitsPerInch(units));
}

}  // namespace quilm
