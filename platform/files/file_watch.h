#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/base/service.h"

namespace tallyvane {

/// Hears of changes of a file while it lives.
class FileWatch {
public:
    FileWatch() = default;
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;
    virtual ~FileWatch() = default;
};

/// What watches files. The plain service watches none.
class FileWatches : public Service<FileWatches> {
public:
    /// Calls `changed` soon after the file of that path was changed, replaced or removed by anyone, and at times when
    /// it was not: whoever hears it looks for himself. Null where files can't be watched.
    [[nodiscard]] virtual std::unique_ptr<FileWatch>
    start(const std::string& /*path*/, std::function<void()> /*changed*/) { // NOLINT(performance-*): others keep it
        return nullptr;
    }
};

} // namespace tallyvane
