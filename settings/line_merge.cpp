#include "settings/line_merge.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

#include "platform/base/text.h"
#include "platform/files/text_output_stream.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;
using Part = std::span<const std::string>;

constexpr int unmatched = -1;

/// Of each line of the base the place of the same line in the other text, in ascending order and as many as can be: the
/// longest common subsequence of what lies between the lines with which both begin and end alike.
std::vector<int> matchesOf(const Lines& base, const Lines& other) {
    constexpr std::size_t mostCells = 4'000'000; // texts that differ in thousands of lines are not compared within
    const std::size_t shorter = std::min(base.size(), other.size());
    std::size_t begin = 0;
    while (begin < shorter && base[begin] == other[begin])
        ++begin;
    std::size_t end = 0;
    while (end < shorter - begin && base[base.size() - 1 - end] == other[other.size() - 1 - end])
        ++end;
    std::vector<int> matches(base.size(), unmatched);
    for (std::size_t i = 0; i < begin; ++i)
        matches[i] = static_cast<int>(i);
    for (std::size_t i = 1; i <= end; ++i)
        matches[base.size() - i] = static_cast<int>(other.size() - i);
    const std::size_t rows = base.size() - begin - end;
    const std::size_t columns = other.size() - begin - end;
    if (rows == 0 || columns == 0 || rows > mostCells / columns)
        return matches;
    std::vector<std::vector<int>> longest(rows + 1, std::vector<int>(columns + 1));
    for (std::size_t i = rows; i-- > 0;)
        for (std::size_t j = columns; j-- > 0;)
            longest[i][j] = base[begin + i] == other[begin + j] ? longest[i + 1][j + 1] + 1
                                                                : std::max(longest[i + 1][j], longest[i][j + 1]);
    for (std::size_t i = 0, j = 0; i < rows && j < columns;)
        if (base[begin + i] == other[begin + j])
            matches[begin + i++] = static_cast<int>(begin + j++);
        else if (longest[i + 1][j] >= longest[i][j + 1])
            ++i;
        else
            ++j;
    return matches;
}

bool areEqual(Part a, Part b) { return std::equal(a.begin(), a.end(), b.begin(), b.end()); }

/// What both sides have made of the same lines: one after the other, in the same order whoever joins them. A line that
/// both have stands once.
void appendBoth(Part one, Part other, Lines& joined) {
    if (std::lexicographical_compare(other.begin(), other.end(), one.begin(), one.end()))
        std::swap(one, other);
    joined.insert(joined.end(), one.begin(), one.end());
    Lines shared(one.begin(), one.end()); // those that the other has not had yet
    for (const std::string& line : other)
        if (const auto found = std::find(shared.begin(), shared.end(), line); found != shared.end())
            shared.erase(found);
        else
            joined.push_back(line);
}

void appendMerged(Part base, Part here, Part there, Lines& joined) {
    if (areEqual(here, base))
        joined.insert(joined.end(), there.begin(), there.end());
    else if (areEqual(there, base) || areEqual(there, here))
        joined.insert(joined.end(), here.begin(), here.end());
    else
        appendBoth(here, there, joined);
}

} // namespace

std::vector<std::string> mergeLines(const Lines& base, const Lines& here, const Lines& there) {
    const std::vector<int> inHere = matchesOf(base, here);
    const std::vector<int> inThere = matchesOf(base, there);
    Lines joined;
    std::size_t atBase = 0;
    std::size_t atHere = 0;
    std::size_t atThere = 0;
    const auto mergeUpTo = [&](std::size_t endBase, std::size_t endHere, std::size_t endThere) {
        appendMerged(Part(base).subspan(atBase, endBase - atBase), Part(here).subspan(atHere, endHere - atHere),
                     Part(there).subspan(atThere, endThere - atThere), joined);
        atBase = endBase;
        atHere = endHere;
        atThere = endThere;
    };
    for (std::size_t i = 0; i < base.size(); ++i) {
        if (inHere[i] == unmatched || inThere[i] == unmatched)
            continue;
        mergeUpTo(i, static_cast<std::size_t>(inHere[i]), static_cast<std::size_t>(inThere[i]));
        joined.push_back(base[i]);
        ++atBase;
        ++atHere;
        ++atThere;
    }
    mergeUpTo(base.size(), here.size(), there.size());
    return joined;
}

std::string joinLines(const std::string& base, const std::string& here, const std::string& there) {
    const auto linesOf = [](const std::string& text) {
        Lines lines;
        TextInputStream stream(text);
        while (!stream.EndOfFile())
            lines.emplace_back(stream.ReadLine());
        return lines;
    };
    TextWriter joined;
    for (const std::string& line : mergeLines(linesOf(base), linesOf(here), linesOf(there)))
        joined.WriteLine(line);
    return joined.text();
}

std::string joinParts(std::string_view base, std::string_view here, std::string_view there, std::string_view mark) {
    const auto partsOf = [mark](std::string_view text) {
        Lines parts;
        for (FieldWalk walk(text, mark); !walk.atEnd();)
            parts.emplace_back(walk.next());
        return parts;
    };
    std::string joined;
    bool isFirst = true;
    for (const std::string& part : mergeLines(partsOf(base), partsOf(here), partsOf(there)))
        joined.append(std::exchange(isFirst, false) ? "" : mark).append(part);
    return joined;
}

} // namespace tallyvane
