#include "core/Types.h"

#include <cmath>

namespace quilm {

const f64 Pi = 4 * std::atan(1.0);

}  // namespace quilm
