#include "hosts/common/page_layout.h"

#include "controls/controls.h"
#include "controls/sheet_page.h"

namespace {

class PageWalk {
public:
    PageWalk(const SheetPage& page, bool banner) : controls_(page.controls()), banner_(banner) {}

    PageLayout layout()
    {
        PageLayout made;
        for (index_ = 0; index_ < controls_.size(); ++index_) {
            if (is<Timer>(index_)) continue;
            const ControlRole role = controls_[index_].role;
            if (banner_ && (role == ControlRole::title || role == ControlRole::description))
                made.banner.push_back(index_);
            else
                made.rows.push_back(row(role));
        }
        return made;
    }

private:
    template <typename Kind>
    bool is(std::size_t index) const
    {
        return index < controls_.size() && dynamic_cast<Kind*>(controls_[index].control);
    }

    bool nextIs(ControlRole role) const
    {
        return index_ + 1 < controls_.size() && controls_[index_ + 1].role == role;
    }

    /// The row that begins at the present control. Leaves the index at the last control of it.
    PageRow row(ControlRole role)
    {
        switch (role) {
        case ControlRole::fieldLabel:
        case ControlRole::field:
            return field();
        case ControlRole::frame:
            return frame();
        case ControlRole::action:
            return actions();
        default:
            break;
        }
        PageRow made{PageRow::Kind::alone, {}, {index_}};
        made.grows = role == ControlRole::mainTree || role == ControlRole::summary;
        return made;
    }

    /// Fields without a caption of their own stand beside the one before.
    PageRow field()
    {
        PageRow made{PageRow::Kind::field, {}, {}};
        if (is<Label>(index_)) {
            made.caption = index_;
            if (!nextIs(ControlRole::field)) return made;
            ++index_;
        }
        if (is<SpinControl>(index_ + 1))
            made.width = PageRow::Width::number;
        else if (is<DateTimePicker>(index_))
            made.width = PageRow::Width::own;
        made.controls.push_back(index_);
        while (nextIs(ControlRole::field)) made.controls.push_back(++index_);
        for (const std::size_t index : made.controls) made.grows |= is<ListBox>(index);
        if (nextIs(ControlRole::action)) made.controls.push_back(++index_);
        return made;
    }

    PageRow frame()
    {
        PageRow made{PageRow::Kind::frame, {}, {index_}};
        if (index_ + 1 < controls_.size() && !is<Timer>(index_ + 1))
            made.controls.push_back(++index_);
        return made;
    }

    PageRow actions()
    {
        PageRow made{PageRow::Kind::actions, {}, {index_}};
        while (nextIs(ControlRole::action)) made.controls.push_back(++index_);
        return made;
    }

    const std::vector<PageControl>& controls_;
    bool banner_;
    std::size_t index_ = 0;
};

} // namespace

PageLayout layoutOf(const SheetPage& page, bool banner)
{
    return PageWalk(page, banner).layout();
}
