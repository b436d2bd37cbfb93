// The kernel for 512-bit vectors; this file alone is compiled for them.

#if defined(__x86_64__)

#include "analysis/KernelBody.h"

namespace quilm {

namespace {

struct Avx512 {};

}  // namespace

const Kernel kernelAvx512 = KernelBody<Avx512, 8, 4>::kernel;

}  // namespace quilm

#endif
