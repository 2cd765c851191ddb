#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/disk_calls.h"

namespace tallyvane {

/// What a power cut can leave of a folder. From its construction on it notes each call that changes files; `visit` then
/// builds every state in which a cut at any moment can leave them. A disk promises this: what was flushed is there, a
/// sector of 512 bytes is old or new, and a rename has happened or has not. It promises no order: of all that was not
/// flushed, any part may be there, sector by sector; a length may be there without the bytes, which then are zeros, or
/// the bytes without the length; a name is there for sure once its folder was flushed. What a flush that failed should
/// have brought is left to chance, also after a later flush.
class PowerCuts {
public:
    /// Of that folder, with all that stands in it now.
    explicit PowerCuts(std::filesystem::path folder);
    PowerCuts(const PowerCuts&) = delete;
    PowerCuts& operator=(const PowerCuts&) = delete;
    ~PowerCuts();

    /// Ends the noting, lays out each different state in the folder, and calls `look`; `isAfterEnd` tells those of a
    /// cut after the last call. How many there were.
    std::size_t visit(const std::function<void(bool isAfterEnd)>& look);

private:
    struct File {
        std::string bytes; // also behind the length
        std::size_t length = 0;
    };
    struct Disk {
        std::map<std::string, std::size_t> names; // of files, by path
        std::set<std::string> folders;
        std::map<std::size_t, File> files;
    };
    /// Does a part of a call that is on the disk or is not: a sector, a length, a name.
    using Part = std::function<void(Disk&)>;
    struct Event {
        DiskCall call;
        std::size_t file = 0; // that it is about
        std::vector<Part> parts;
    };

    void note(const DiskCall& call);
    std::vector<Part> partsOf(const DiskCall& call, std::size_t file) const;
    bool isFlushed(std::size_t event, std::size_t end) const;
    void visitCutsBefore(std::size_t end, const std::function<void()>& look);
    void layOut(const Disk& disk) const;

    std::filesystem::path folder_;
    Disk atFirst_;
    Disk live_; // with all calls so far
    std::vector<Event> events_;
    std::set<std::string> seen_;
};

} // namespace tallyvane
