#pragma once

#include "platform/desktop/desktop.h"

namespace tallyvane {

class QtDesktop : public Desktop {
public:
    void message(const std::string& text) override;
    std::optional<std::size_t> ask(const std::string& question, const std::vector<std::string>& answers,
                                   std::size_t onEscape) override;
    void beep() override;
    bool openUrl(const std::string& address) override;
    bool openFile(const std::string& path) override;
    void quit(int code) override;

    bool quitAsked() const { return quitAsked_; }
    int quitCode() const { return quitCode_; }

private:
    bool quitAsked_ = false;
    int quitCode_ = 0;
};

} // namespace tallyvane
