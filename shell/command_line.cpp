#include "shell/command_line.h"

#include <filesystem>

#include "platform/base/translation.h"

namespace tallyvane {

namespace {

/// The path itself where the folder that it starts from is gone.
std::string absolutePath(const std::string& path) {
    std::error_code failed;
    const std::filesystem::path absolute = std::filesystem::absolute(path, failed);
    return failed ? path : absolute.string();
}

} // namespace

CommandLine CommandLine::beforeToolkit(const std::vector<std::string>& arguments) {
    std::vector<std::string> ours;
    for (const std::string& argument : arguments) {
        if (argument == "--")
            break;
        if (argument.starts_with("--"))
            ours.push_back(argument);
    }
    return CommandLine(ours);
}

CommandLine::CommandLine(const std::vector<std::string>& arguments) {
    bool onlyFiles = false;
    for (const std::string& argument : arguments) {
        const bool isOption = !onlyFiles && argument.size() > 1 && argument.starts_with('-');
        if (isOption && argument == "--help")
            help = true;
        else if (isOption && argument == "--version")
            version = true;
        else if (isOption && argument == "--")
            onlyFiles = true;
        else if (isOption)
            error = tr("tallyvane: unknown option \u201c%1\u201d; --help tells those that there are", {argument});
        else if (!file.empty())
            error = tr("tallyvane: one file of readings at a time can be imported");
        else if (!argument.empty())
            file = absolutePath(argument);
    }
}

std::string CommandLine::helpText() {
    return tr("Usage: tallyvane [FILE]\n"
              "\n"
              "A diary for people with type 2 diabetes. FILE is a file of readings, which is offered for import.\n"
              "\n"
              "  --help     shows this text\n"
              "  --version  shows the version of the program\n");
}

std::string CommandLine::versionText() { return "Tallyvane " TALLYVANE_VERSION "\n"; }

} // namespace tallyvane
