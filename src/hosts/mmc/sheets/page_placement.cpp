#include "hosts/mmc/sheets/page_placement.h"

#include <algorithm>
#include <utility>

namespace mmc {

namespace {

// In dialog units.
constexpr int margin = 7;
constexpr int bannerMargin = 14; ///< beside its texts
constexpr int leastBanner = 26;
constexpr int usualGap = 7; ///< between rows
constexpr int leastGap = 2;
constexpr int fieldGap = 4; ///< between a caption and its field
constexpr int frameEdge = 6;
constexpr int numberWidth = 36;

/// The rows of a page that are in sight, and how high they are.
class Placement {
public:
    Placement(const PageLayout& layout, const ControlViews& views, DialogUnits units, SIZE area)
        : layout_(layout), views_(views), units_(units), area_(area)
    {}

    int place()
    {
        const int band = placeBanner();
        const RECT page{units_.across(margin), band + units_.down(margin),
                        area_.cx - units_.across(margin), area_.cy - units_.down(margin)};
        width_ = std::max<int>(page.right - page.left, 1);
        measureRows();
        placeRows(page);
        return band;
    }

private:
    struct Row {
        const PageRow* row;
        int height;
        int captionWidth = 0; ///< of the column that a field's caption stands in
    };

    ControlView& view(std::size_t index) const { return *views_[index]; }
    bool shown(std::size_t index) const { return views_[index] && views_[index]->takesRoom(); }

    bool anyShown(const PageRow& row) const
    {
        return (row.caption && shown(*row.caption)) ||
               std::any_of(row.controls.begin(), row.controls.end(),
                           [this](std::size_t index) { return shown(index); });
    }

    int placeBanner() const
    {
        if (layout_.banner.empty()) return 0;
        const int gap = units_.down(leastGap);
        int top = units_.down(margin);
        bool first = true;
        for (const std::size_t index : layout_.banner) {
            if (!shown(index)) continue;
            // What the page is for stands below its title, a little to the right.
            const int left = units_.across(first ? bannerMargin : bannerMargin + margin);
            const int right = area_.cx - units_.across(bannerMargin);
            const int height = view(index).heightFor(std::max(right - left, 1));
            view(index).place({left, top, right, top + height});
            top += height + gap;
            first = false;
        }
        return std::max(top - gap + units_.down(margin), units_.down(leastBanner));
    }

    void measureRows()
    {
        for (const PageRow& row : layout_.rows)
            if (anyShown(row)) rows_.push_back({&row, 0});
        for (std::size_t first = 0; first < rows_.size();) {
            std::size_t past = first + 1;
            if (rows_[first].row->kind == PageRow::Kind::field) {
                while (past < rows_.size() && rows_[past].row->kind == PageRow::Kind::field) ++past;
                shareCaptionColumn(first, past);
            }
            first = past;
        }
        for (Row& row : rows_) row.height = heightOf(row);
    }

    void shareCaptionColumn(std::size_t first, std::size_t past)
    {
        int widest = 0;
        for (std::size_t at = first; at < past; ++at) {
            const PageRow& row = *rows_[at].row;
            if (row.caption && !row.controls.empty())
                widest = std::max(widest, captionWidth(view(*row.caption)));
        }
        if (widest > 0) widest += units_.across(fieldGap);
        for (std::size_t at = first; at < past; ++at) rows_[at].captionWidth = widest;
    }

    /// A long caption is wrapped rather than its field cut short, and takes no more than its lines
    /// need.
    int captionWidth(ControlView& caption) const
    {
        int enough = caption.ownWidth();
        const int most = width_ * 2 / 5;
        if (enough <= most) return enough;
        enough = most;
        const int height = caption.heightFor(most);
        for (int narrow = most / 2; narrow + 1 < enough;) {
            const int middle = (narrow + enough) / 2;
            // A word that is cut has the height of one that is not.
            const bool fits =
                caption.heightFor(middle) <= height && caption.widthFor(middle) <= middle;
            (fits ? enough : narrow) = middle;
        }
        return enough;
    }

    int heightOf(const Row& measured) const
    {
        const PageRow& row = *measured.row;
        int height = 0;
        switch (row.kind) {
        case PageRow::Kind::alone:
            return view(row.controls.front()).heightFor(width_);
        case PageRow::Kind::frame:
            return frameHeight(row);
        case PageRow::Kind::field:
            if (row.caption)
                height =
                    view(*row.caption)
                        .heightFor(
                            row.controls.empty()
                                ? width_
                                : std::max(measured.captionWidth - units_.across(fieldGap), 1));
            [[fallthrough]];
        case PageRow::Kind::actions:
            for (const std::size_t index : row.controls)
                if (shown(index)) height = std::max(height, view(index).heightFor(width_));
            return height;
        }
        return height;
    }

    int frameHeight(const PageRow& row) const
    {
        int height = view(row.controls.front()).heightFor(width_);
        const int inside = std::max(width_ - 2 * units_.across(frameEdge), 1);
        for (std::size_t at = 1; at < row.controls.size(); ++at)
            height += view(row.controls[at]).heightFor(inside) + units_.down(leastGap);
        return height + units_.down(frameEdge);
    }

    void placeRows(RECT page)
    {
        int needed = 0;
        int growing = 0;
        for (const Row& row : rows_) {
            needed += row.height;
            growing += row.row->grows;
        }
        const int gaps = std::max(static_cast<int>(rows_.size()) - 1, 1);
        const int height = page.bottom - page.top;
        const int gap =
            std::clamp((height - needed) / gaps, units_.down(leastGap), units_.down(usualGap));
        int rest = std::max(height - needed - gap * (static_cast<int>(rows_.size()) - 1), 0);
        for (const Row& row : rows_) {
            int taken = row.height;
            if (row.row->grows) {
                taken += rest / growing;
                rest -= rest / growing--;
            }
            placeRow(row, {page.left, page.top, page.right, page.top + taken});
            page.top += taken + gap;
        }
    }

    void placeRow(const Row& placed, const RECT& area) const
    {
        const PageRow& row = *placed.row;
        switch (row.kind) {
        case PageRow::Kind::alone:
            return view(row.controls.front()).place(area);
        case PageRow::Kind::frame:
            return placeFrame(row, area);
        case PageRow::Kind::actions:
            return placeActions(row, area);
        case PageRow::Kind::field:
            return placeField(placed, area);
        }
    }

    void placeFrame(const PageRow& row, const RECT& area) const
    {
        view(row.controls.front()).place(area);
        RECT inside{area.left + units_.across(frameEdge),
                    area.top + view(row.controls.front()).heightFor(width_) + units_.down(leastGap),
                    area.right - units_.across(frameEdge), area.bottom - units_.down(frameEdge)};
        for (std::size_t at = 1; at < row.controls.size(); ++at)
            view(row.controls[at]).place(inside);
    }

    void placeActions(const PageRow& row, const RECT& area) const
    {
        int left = area.left;
        for (const std::size_t index : row.controls) {
            if (!shown(index)) continue;
            const int width = view(index).ownWidth();
            view(index).place({left, area.top, left + width, area.bottom});
            left += width + units_.across(fieldGap);
        }
    }

    void placeField(const Row& placed, const RECT& area) const
    {
        const PageRow& row = *placed.row;
        if (row.caption) {
            const int width =
                row.controls.empty() ? width_ : placed.captionWidth - units_.across(fieldGap);
            const int height = view(*row.caption).heightFor(std::max(width, 1));
            // Beside a field of one line in its middle, beside a list at the top.
            const int lower =
                row.grows ? 0
                          : std::max((static_cast<int>(area.bottom - area.top) - height) / 2, 0);
            view(*row.caption)
                .place({area.left, area.top + lower, area.left + width, area.top + lower + height});
        }
        if (!row.controls.empty())
            placeFieldControls(
                row, {area.left + placed.captionWidth, area.top, area.right, area.bottom});
    }

    void placeFieldControls(const PageRow& row, RECT area) const
    {
        const bool number = row.width == PageRow::Width::number;
        const int gap = number ? 0 : units_.across(fieldGap);
        int others = 0;
        for (std::size_t at = 1; at < row.controls.size(); ++at)
            if (shown(row.controls[at])) others += view(row.controls[at]).ownWidth() + gap;
        for (std::size_t at = 0; at < row.controls.size(); ++at) {
            ControlView& field = view(row.controls[at]);
            if (!field.takesRoom()) continue;
            int width = field.ownWidth();
            if (at == 0 && row.width == PageRow::Width::rest)
                width = std::max<int>(area.right - area.left - others, width);
            else if (at == 0 && number)
                width = units_.across(numberWidth);
            const int height = row.grows ? area.bottom - area.top : field.heightFor(width);
            const int lower = (area.bottom - area.top - height) / 2;
            field.place(
                {area.left, area.top + lower, area.left + width, area.top + lower + height});
            area.left += width + gap;
        }
    }

    const PageLayout& layout_;
    const ControlViews& views_;
    const DialogUnits units_;
    const SIZE area_;
    int width_ = 1;
    std::vector<Row> rows_;
};

} // namespace

int placeViews(const PageLayout& layout, const ControlViews& views, DialogUnits units, SIZE area)
{
    return Placement(layout, views, units, area).place();
}

} // namespace mmc
