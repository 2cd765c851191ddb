#include "support/power_cuts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

namespace tallyvane {

namespace {

using Kind = DiskCall::Kind;

constexpr std::size_t sector = 512;
constexpr std::size_t mostParts = 16; // that may be there or not at one moment: 65,536 states

std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool changesName(Kind kind) {
    return kind == Kind::make || kind == Kind::makeFolder || kind == Kind::move || kind == Kind::remove;
}

/// Gives a file, or a folder with all in it, another path.
template <class Disk>
void moveName(const std::string& from, const std::string& to, Disk& disk) {
    const auto moved = [&](const std::string& path) {
        return path == from || path.starts_with(from + "/") ? to + path.substr(from.size()) : path;
    };
    if (disk.names.contains(from))
        disk.names.erase(to);
    decltype(disk.names) names;
    for (const auto& [path, file] : disk.names)
        names.emplace(moved(path), file);
    decltype(disk.folders) folders;
    for (const std::string& path : disk.folders)
        folders.insert(moved(path));
    disk.names = std::move(names);
    disk.folders = std::move(folders);
}

} // namespace

PowerCuts::PowerCuts(std::filesystem::path folder) : folder_(std::move(folder)) {
    atFirst_.folders.insert(folder_.string());
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_)) {
        if (entry.is_directory()) {
            atFirst_.folders.insert(entry.path().string());
            continue;
        }
        const std::size_t file = atFirst_.files.size();
        const std::string content = contentOf(entry.path());
        atFirst_.names[entry.path().string()] = file;
        atFirst_.files[file] = {content, content.size()};
    }
    live_ = atFirst_;
    DiskCalls::done = [this](const DiskCall& call) { note(call); };
}

PowerCuts::~PowerCuts() { DiskCalls::done = nullptr; }

void PowerCuts::note(const DiskCall& call) {
    if (!call.path.starts_with(folder_.string()))
        return;
    const auto found = live_.names.find(call.path);
    const std::size_t file = call.kind == Kind::make      ? live_.files.size()
                             : found != live_.names.end() ? found->second
                                                          : live_.files.size();
    if (call.kind == Kind::make)
        atFirst_.files[file] = live_.files[file] = {};
    Event event{call, file, partsOf(call, file)};
    for (const Part& part : event.parts)
        part(live_);
    events_.push_back(std::move(event));
}

std::vector<PowerCuts::Part> PowerCuts::partsOf(const DiskCall& call, std::size_t file) const {
    switch (call.kind) {
    case Kind::make:
        return {[path = call.path, file](Disk& disk) { disk.names[path] = file; }};
    case Kind::makeFolder:
        return {[path = call.path](Disk& disk) { disk.folders.insert(path); }};
    case Kind::move:
        return {[from = call.path, to = call.to](Disk& disk) { moveName(from, to, disk); }};
    case Kind::remove:
        return {[path = call.path](Disk& disk) { disk.names.erase(path); }};
    case Kind::cut:
        return {[file, length = call.place](Disk& disk) {
            File& cut = disk.files[file];
            cut.bytes.resize(std::min(cut.bytes.size(), length));
            cut.length = length;
        }};
    case Kind::write: {
        std::vector<Part> parts;
        const std::size_t end = call.place + call.bytes.size();
        for (std::size_t begin = call.place; begin < end;) {
            const std::size_t sectorEnd = std::min(end, (begin / sector + 1) * sector);
            parts.emplace_back(
                [file, begin, bytes = call.bytes.substr(begin - call.place, sectorEnd - begin)](Disk& disk) {
                    std::string& content = disk.files[file].bytes;
                    content.resize(std::max(content.size(), begin + bytes.size()));
                    content.replace(begin, bytes.size(), bytes);
                });
            begin = sectorEnd;
        }
        if (end > live_.files.at(file).length)
            parts.emplace_back([file, end](Disk& disk) { disk.files[file].length = end; });
        return parts;
    }
    default:
        return {};
    }
}

/// A flush after one that has failed says nothing of what was written before that: the system takes it for done.
bool PowerCuts::isFlushed(std::size_t event, std::size_t end) const {
    const Event& changed = events_[event];
    const std::string folder = folderOf(changed.call.kind == Kind::move ? changed.call.to : changed.call.path);
    for (std::size_t i = event + 1; i < end; ++i) {
        const Event& later = events_[i];
        const bool isOfIt = changesName(changed.call.kind) ? later.call.path == folder : later.file == changed.file;
        if (isOfIt && later.call.kind == Kind::flush)
            return true;
        if (isOfIt && later.call.kind == Kind::failedFlush)
            return false;
    }
    return false;
}

void PowerCuts::layOut(const Disk& disk) const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_))
        std::filesystem::remove_all(entry.path());
    for (const std::string& path : disk.folders) // those above come first
        if (disk.folders.contains(folderOf(path)))
            std::filesystem::create_directory(path);
    for (const auto& [path, file] : disk.names) {
        std::string content = disk.files.at(file).bytes;
        content.resize(disk.files.at(file).length);
        if (disk.folders.contains(folderOf(path)))
            std::ofstream(path, std::ios::binary) << content;
    }
}

void PowerCuts::visitCutsBefore(std::size_t end, const std::function<void()>& look) {
    std::size_t open = 0;
    for (std::size_t i = 0; i < end; ++i)
        open += isFlushed(i, end) ? 0 : events_[i].parts.size();
    ASSERT_LE(open, mostParts) << "too much between two flushes to try it all";
    for (std::size_t chosen = 0; chosen < std::size_t{1} << open; ++chosen) {
        Disk disk = atFirst_;
        std::size_t bit = 0;
        for (std::size_t i = 0; i < end; ++i) {
            const bool isThere = isFlushed(i, end);
            for (const Part& part : events_[i].parts)
                if (isThere || (chosen >> bit++ & 1U) != 0)
                    part(disk);
        }
        std::string state;
        for (const std::string& path : disk.folders)
            state.append(path).append(1, '\0');
        for (const auto& [path, file] : disk.names) {
            std::string content = disk.files.at(file).bytes;
            content.resize(disk.files.at(file).length);
            state.append(path).append(1, '\0').append(std::to_string(content.size())).append(1, '\0').append(content);
        }
        if (!seen_.insert(state).second)
            continue;
        layOut(disk);
        look();
    }
}

std::size_t PowerCuts::visit(const std::function<void(bool isAfterEnd)>& look) {
    DiskCalls::done = nullptr;
    DiskCalls::skipsFlushes = true;
    visitCutsBefore(events_.size(), [&] { look(true); });
    // What a cut between two flushes can leave, one before the later flush can leave as well.
    for (std::size_t end = 0; end < events_.size(); ++end)
        if (events_[end].call.kind == Kind::flush)
            visitCutsBefore(end, [&] { look(false); });
    DiskCalls::skipsFlushes = false;
    return seen_.size();
}

} // namespace tallyvane
