// The kernel for 256-bit vectors; this file alone is compiled for them.

#if defined(__x86_64__)

#include "analysis/KernelBody.h"

namespace quilm {

namespace {

struct Avx2 {};

}  // namespace

const Kernel kernelAvx2 = KernelBody<Avx2, 4, 4>::kernel;

}  // namespace quilm

#endif
