#include "synthesis/NormalizedText.h"

#include <cmath>

#include "core/NumberText.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

std::string Number(f32 value) { return ShortText(value, LeadingZero::Keep); }

std::string Row(const char* kind, int position, f32 value) {
  return std::string(kind) + "(" + std::to_string(position) + ") = " + Number(value);
}

// The return loss that a ripple means for a lossless filter.
f32 ReturnOf(f32 Apass) { return static_cast<f32>(10 * std::log10(1 - std::pow(10.0, -f64{Apass} / 10))); }

// Elements of an all-pole prototype, shunt and series in turn.
void AddPlainRow(std::vector<std::string>& rows, const DesignRecord& record, int j) {
  rows.push_back(Row(j % 2 == 1 ? "C" : "L", j, record.Gj[j]));
}

// With transmission zeros the even places are series inductors, each with a capacitor across it where it is tuned.
void AddBranchRows(std::vector<std::string>& rows, const DesignRecord& record, int j) {
  if (j % 2 == 1) {
    rows.push_back(Row("C", j, record.Gj[j]));
    return;
  }
  const f32 inductor = record.Hj[j];
  const f32 capacitor = record.Gj[j];
  rows.push_back(Row("L", j, inductor));
  if (!(capacitor > 0 && inductor > 0)) return;
  rows.push_back(Row("C", j, capacitor));
  rows.push_back(Row("W", j, static_cast<f32>(1 / std::sqrt(f64{inductor} * f64{capacitor}))));
}

}  // namespace

std::string FamilyHeading(const DesignRecord& record) {
  switch (record.Family) {
    case familyButterworth:
      return "Butterworth family";
    case familyChebyshev:
      return "Chebyshev family";
    case familyCauer:
      return "Cauer family";
    case familyBessel:
      return "Bessel family";
    case familyGaussian:
      return "Gaussian family";
    case familyGaussian12:
      return "Gaussian to 12 family";
    case familyConstantK:
      return "Constant-K family";
    case familyMderived:
      return "M-Derived family";
    default:
      return {};
  }
}

std::vector<std::string> NormalizedEntries(const DesignRecord& record) {
  if (record.Family != familyChebyshev && record.Family != familyCauer) return {};
  std::vector<std::string> lines = {"Apass: " + Number(record.Apass) +
                                    " dB   (Return: " + Trimmed(FormatValue(ReturnOf(record.Apass))) + " dB)"};
  if (record.Family == familyCauer) {
    lines.push_back("Astop: " + Number(record.Astop) + " dB");
    lines.push_back("Fstop: " + Number(record.FstopNorm));
  }
  return lines;
}

std::string NormalizedCaption(const DesignRecord& record) {
  const std::string heading = FamilyHeading(record);
  const bool ripple = record.Family == familyChebyshev || record.Family == familyCauer;
  return "These are the values in farads and henries for a capacitor-input lowpass prototype with a  " +
         heading.substr(0, heading.rfind(' ')) + " response, a source of 1 ohm and a cutoff of 1 radian per second, " +
         (ripple ? "where the ripple ends." : "as the family defines it.");
}

std::vector<std::string> NormalizedRows(const DesignRecord& record) {
  std::vector<std::string> rows;
  for (int j = 1; j <= static_cast<int>(record.Order); ++j) {
    record.CauerFlag == 1 ? AddBranchRows(rows, record, j) : AddPlainRow(rows, record, j);
  }
  return rows;
}

}  // namespace quilm
