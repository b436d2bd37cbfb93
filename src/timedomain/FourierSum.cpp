#include "timedomain/FourierSum.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quilm {

namespace {

constexpr std::size_t blockSize = 32;  // angles that are summed side by side, in vectors of the processor

using Block = std::array<f64, blockSize>;

void SumBlock(const Phasors& lines, const Block& turnRe, const Block& turnIm, Block& re, Block& im) {
  for (std::size_t k = lines.Count(); k-- > 0;) {
    const f64 lineRe = lines.re[k];
    const f64 lineIm = lines.im[k];
    for (std::size_t i = 0; i < blockSize; ++i) {
      const f64 turned = re[i] * turnRe[i] - im[i] * turnIm[i];
      im[i] = re[i] * turnIm[i] + im[i] * turnRe[i] + lineIm;
      re[i] = turned + lineRe;
    }
  }
}

}  // namespace

void Phasors::SetPolar(std::size_t at, f64 magnitude, f64 angle) {
  re[at] = magnitude * std::cos(angle);
  im[at] = magnitude * std::sin(angle);
}

Phasors SumOfOddLines(const Phasors& lines, std::span<const f64> angles) {
  Phasors sums(angles.size());
  for (std::size_t first = 0; first < angles.size(); first += blockSize) {
    const std::size_t count = std::min(blockSize, angles.size() - first);
    Block cosine{}, sine{}, turnRe{}, turnIm{}, re{}, im{};
    for (std::size_t i = 0; i < count; ++i) {
      cosine[i] = std::cos(angles[first + i]);
      sine[i] = std::sin(angles[first + i]);
      turnRe[i] = cosine[i] * cosine[i] - sine[i] * sine[i];
      turnIm[i] = 2 * sine[i] * cosine[i];
    }
    SumBlock(lines, turnRe, turnIm, re, im);
    for (std::size_t i = 0; i < count; ++i) {
      sums.re[first + i] = re[i] * cosine[i] - im[i] * sine[i];
      sums.im[first + i] = re[i] * sine[i] + im[i] * cosine[i];
    }
  }
  return sums;
}

}  // namespace quilm
