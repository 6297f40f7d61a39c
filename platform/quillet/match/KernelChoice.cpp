#include "MatchKernel.h"

namespace Zenvora::Quillet {

extern const MatchKernel kKernelPlain;
#ifdef LUMIDEX_X86_KERNELS
extern const MatchKernel kKernelSse2;
extern const MatchKernel kKernelAvx2;
extern const MatchKernel kKernelAvx512;
extern const MatchKernel kKernelAvx512Vnni;
#endif

KernelList RunnableKernels() noexcept {
  KernelList list = {{&kKernelPlain}, 1};
#ifdef LUMIDEX_X86_KERNELS
  const auto add = [&list](const MatchKernel& kernel) { list.kernels[list.count++] = &kernel; };
  __builtin_cpu_init();
  add(kKernelSse2);
  if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) {
    add(kKernelAvx2);
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw")) {
      add(kKernelAvx512);
      if (__builtin_cpu_supports("avx512vnni")) {
        add(kKernelAvx512Vnni);
      }
    }
  }
#endif
  return list;
}

const MatchKernel& BestKernel() noexcept {
  static const MatchKernel* const kBest = [] {
    const KernelList list = RunnableKernels();
    return list.kernels[list.count - 1];
  }();
  return *kBest;
}

}  // namespace Zenvora::Quillet
