#include "fuzz/fuzz.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <sys/types.h>
#include <unistd.h>

#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/unsaved_files.h"

namespace tallyvane::Fuzz {

namespace {

namespace fs = std::filesystem;

struct Desk {
    Desk() {
        const fs::path memory = fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path();
        std::string folder = memory / ("fuzz-" + std::string(6, 'X')); // which mkdtemp fills in
        if (::mkdtemp(folder.data()) == nullptr)
            std::abort();
        home = folder;
        SpecialFolder::ApplicationData = GetFolderItem(folder);
        fs::create_directories(home / DataFiles::applicationName / DataFiles::applicationName);
        fs::create_directories(home / DataFiles::applicationName / DataFiles::details);
        StartupGlobals::gDataFolder = DataFiles::applicationFolder();
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    ~Desk() {
        std::error_code kept;
        fs::remove_all(home, kept);
    }

    fs::path home;
};

const Desk& desk() {
    static const Desk theDesk;
    return theDesk;
}

} // namespace

std::string path(std::string_view name) { return desk().home / DataFiles::applicationName / name; }

void write(std::string_view name, const std::string& content) {
    std::ofstream(path(name), std::ios::binary | std::ios::trunc) << content;
}

std::string read(std::string_view name) {
    std::ostringstream content;
    content << std::ifstream(path(name), std::ios::binary).rdbuf();
    return content.str();
}

void expectEqual(const std::string& want, const std::string& got, const char* what) {
    if (want == got)
        return;
    std::cerr << what << "\nfirst:\n" << want << "\nthen:\n" << got << std::endl;
    std::abort();
}

void checkReader(std::string_view name, const std::string& content,
                 const std::function<std::optional<std::string>()>& load, const std::function<void()>& save) {
    write(name, content);
    const std::optional<std::string> first = load();
    if (!first)
        return;
    write(name, "");
    UnsavedFiles::forgetAll(); // else the empty file is another program's, and stays
    save();
    const std::string saved = read(name);
    expectEqual(*first, load().value_or("what the file can't keep apart"), "reads otherwise after it was written");
    save();
    expectEqual(saved, read(name), "is written otherwise the second time");
}

} // namespace tallyvane::Fuzz
