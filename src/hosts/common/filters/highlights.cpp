#include "hosts/common/filters/highlights.h"

#include "hosts/common/look/theme.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t mostMarks = 200; ///< in one text

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
        const QString pattern = text.expression ? text.text : QRegularExpression::escape(text.text);
        QRegularExpression expression(pattern, text.matchesCase
                                                   ? QRegularExpression::NoPatternOption
                                                   : QRegularExpression::CaseInsensitiveOption);
        if (expression.isValid()) searches_.push_back({std::move(expression), colour});
    };
    for (const Kept& kept : kept_) add(kept.text, kept.colour);
    add(found_, most);
    emit changed();
}

std::vector<Highlights::Mark> Highlights::marksIn(const QString& text) const
{
    std::vector<Mark> marks;
    for (const Search& search : searches_) {
        auto matches = search.expression.globalMatch(text);
        while (matches.hasNext() && marks.size() < mostMarks) {
            const auto match = matches.next();
            if (match.capturedLength() > 0)
                marks.push_back({match.capturedStart(), match.capturedLength(), search.colour});
        }
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
