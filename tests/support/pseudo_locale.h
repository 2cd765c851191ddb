#pragma once

#include <string>

#include "platform/base/translation.h"

namespace tallyvane {

/// A language for tests, in which every text stands in brackets. Active while the object lives.
class PseudoLocale {
public:
    PseudoLocale() {
        Translation::lookup = [](std::string_view english) { return "{" + std::string(english) + "}"; };
    }
    PseudoLocale(const PseudoLocale&) = delete;
    PseudoLocale& operator=(const PseudoLocale&) = delete;
    ~PseudoLocale() { Translation::lookup = nullptr; }

    /// What of a text that the user reads did not come out of the lookup: nothing, unless it holds a word.
    static std::string untranslated(const std::string& shown) {
        std::string rest;
        int depth = 0;
        int letters = 0; // in a row
        bool hasWord = false;
        for (const char c : shown) {
            depth += c == '{';
            if (depth == 0) {
                rest += c;
                letters = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ? letters + 1 : 0;
                hasWord = hasWord || letters > 1;
            }
            depth -= c == '}';
        }
        return hasWord ? rest : "";
    }
};

} // namespace tallyvane
