#include "support/failing_disk.h"

#include <algorithm>

namespace tallyvane {

FailingDisk::FailingDisk(Call call, std::size_t afterBytes, bool once)
    : call_(call), bytesLeft_(afterBytes), once_(once) {
    DiskCalls::allowance = [this](Call asked, std::size_t bytes) { return allowance(asked, bytes); };
}

FailingDisk::~FailingDisk() { DiskCalls::allowance = nullptr; }

std::size_t FailingDisk::allowance(Call call, std::size_t bytes) {
    if (call != call_ || (once_ && hasFailed_))
        return bytes;
    const std::size_t taken = std::min(bytes, bytesLeft_);
    bytesLeft_ -= taken;
    hasFailed_ = hasFailed_ || taken == 0;
    return taken;
}

} // namespace tallyvane
