#pragma once

#include <string>
#include <vector>

namespace tallyvane {

/// What the program was called with: "--help", "--version", or a file of readings.
struct CommandLine {
    /// Parses the arguments after the program's name, without those of the toolkit. After "--" everything is a file.
    explicit CommandLine(const std::vector<std::string>& arguments);
    /// The same before the toolkit has taken out its own, which begin with one "-" and may have values behind them:
    /// only what begins with "--" is looked at.
    static CommandLine beforeToolkit(const std::vector<std::string>& arguments);

    bool help = false;
    bool version = false;
    /// The absolute path of the file; "" for none.
    std::string file;
    /// One line for standard error about what can't be understood; "" for nothing.
    std::string error;

    static std::string helpText();
    /// "Tallyvane 1.1.7"
    static std::string versionText();
};

} // namespace tallyvane
