#include "hosts/common/filters/highlights.h"

#include "hosts/common/look/theme.h"
#include "runtime/run_time_error.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace {

using timeline::PatternSearch;

constexpr std::size_t mostMarks = 200; ///< in one text

/// Walks over a text in UTF-8, and tells where it is in UTF-16.
class UnitCount {
public:
    /// `place` is no less than the one of before.
    qsizetype unitsBefore(std::string_view text, std::size_t place)
    {
        for (; at_ < place; ++at_) {
            const auto byte = static_cast<unsigned char>(text[at_]);
            if ((byte & 0xC0U) != 0x80U) units_ += byte >= 0xF0U ? 2 : 1;
        }
        return units_;
    }

private:
    std::size_t at_ = 0;
    qsizetype units_ = 0;
};

/// Calls with each place of a part of a line that has the pattern, and not in vain.
template <typename Does>
void forEachFound(const PatternSearch& search, std::string_view line, std::size_t from,
                  std::size_t end, const Does& does)
{
    while (from < end) {
        const auto found = search.findIn(line, from, end);
        if (!found) return;
        if (found->length > 0 && !does(*found)) return;
        from = found->begin + found->length;
        if (found->length == 0)
            from += std::max<std::size_t>(1, utf8CharacterLength(line.substr(from)));
    }
}

} // namespace

void Highlights::setFound(const TextCondition& text)
{
    if (text == found_) return;
    found_ = text;
    renew();
}

bool Highlights::keep(const TextCondition& text)
{
    if (text.text.isEmpty() || kept_.size() == most) return false;
    const auto same = [&](const Kept& kept) { return kept.text == text; };
    if (std::any_of(kept_.begin(), kept_.end(), same)) return false;
    std::size_t colour = 0;
    const auto taken = [&](const Kept& kept) { return kept.colour == colour; };
    while (std::any_of(kept_.begin(), kept_.end(), taken)) ++colour;
    kept_.push_back({text, colour});
    renew();
    return true;
}

void Highlights::setKept(const std::vector<Kept>& kept)
{
    kept_.clear();
    for (const Kept& one : kept) {
        const auto same = [&](const Kept& other) {
            return other.colour == one.colour || other.text == one.text;
        };
        if (!one.text.text.isEmpty() && one.colour < most &&
            std::none_of(kept_.begin(), kept_.end(), same))
            kept_.push_back(one);
    }
    renew();
}

void Highlights::letGo(std::size_t colour)
{
    std::erase_if(kept_, [&](const Kept& kept) { return kept.colour == colour; });
    renew();
}

void Highlights::renew()
{
    searches_.clear();
    const auto add = [this](const TextCondition& text, std::size_t colour) {
        if (text.text.isEmpty()) return;
        try {
            searches_.push_back({text.pattern()->searchIn(nullptr), colour});
        } catch (const RunTimeError&) {
            return; // who looks for it is told what is wrong with it
        }
    };
    for (const Kept& kept : kept_) add(kept.text, kept.colour);
    add(found_, most);
    emit changed();
}

std::vector<Highlights::Mark> Highlights::marksIn(const QString& text, LineEdges ends) const
{
    std::vector<Mark> marks;
    if (searches_.empty()) return marks;
    // A sign that parts fields stands for what the line has before the text and behind it.
    const std::string before(ends.begins ? "" : ",");
    const std::string line = before + text.toStdString() + (ends.ends ? "" : ",");
    const std::size_t end = line.size() - (ends.ends ? 0 : 1);
    const auto outside = static_cast<qsizetype>(before.size());
    for (const Search& search : searches_) {
        UnitCount count;
        forEachFound(*search.search, line, before.size(), end, [&](PatternSearch::Found found) {
            const qsizetype begin = count.unitsBefore(line, found.begin);
            const qsizetype behind = count.unitsBefore(line, found.begin + found.length);
            if (marks.size() == mostMarks) return false;
            marks.push_back({begin - outside, behind - begin, search.colour});
            return true;
        });
    }
    return marks;
}

QColor Highlights::ground(std::size_t colour, const QPalette& palette)
{
    static constexpr std::array hues = {195, 95, 285, 330, 25, 235};
    static_assert(hues.size() == most);
    if (colour >= most) return theme::hitTint(palette);
    return theme::isDark(palette) ? QColor::fromHsl(hues[colour], 120, 75)
                                  : QColor::fromHsl(hues[colour], 170, 205);
}
