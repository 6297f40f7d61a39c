#pragma once

namespace Zenvora::Bench {

/// Forgets the peak so far, where the system can (Linux).
void ResetPeakMemory();

/// The most memory the process has held since, in MiB; 0 where the system does not tell.
double PeakMemoryMiB();

}  // namespace Zenvora::Bench
