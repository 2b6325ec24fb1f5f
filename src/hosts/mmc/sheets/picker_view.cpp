#include "hosts/mmc/sheets/control_views.h"

#include <utility>

namespace mmc {

namespace {

// In dialog units.
constexpr int usualHeight = 13;
constexpr int buttonAndEdges = 24;

bool operator==(const SYSTEMTIME& left, const SYSTEMTIME& right)
{
    return left.wYear == right.wYear && left.wMonth == right.wMonth && left.wDay == right.wDay &&
           left.wHour == right.wHour && left.wMinute == right.wMinute &&
           left.wSecond == right.wSecond;
}

/// A moment as the window takes it; it has no year before 1601, where the time of a date that was
/// not set yet is shown on another day.
SYSTEMTIME systemTimeOf(Date value)
{
    constexpr int firstYear = 1601;
    const DateParts parts = partsOf(value);
    SYSTEMTIME made{};
    made.wYear = static_cast<WORD>(std::max(parts.year, firstYear));
    made.wMonth = static_cast<WORD>(parts.month);
    made.wDay = static_cast<WORD>(parts.day);
    made.wHour = static_cast<WORD>(parts.hour);
    made.wMinute = static_cast<WORD>(parts.minute);
    made.wSecond = static_cast<WORD>(parts.second);
    return made;
}

/// What a person of this machine calls a date or a time, one with as many and as wide signs as any.
std::wstring widestText(PickerKind kind)
{
    const SYSTEMTIME moment{2028, 12, 4, 28, 22, 58, 58, 0};
    constexpr int most = 100;
    wchar_t text[most] = L"";
    if (kind == PickerKind::date)
        GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &moment, nullptr, text, most);
    else
        GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &moment, nullptr, text, most);
    return text;
}

class PickerView final : public ControlView {
public:
    PickerView(DateTimePicker& picker, ControlRole role)
        : ControlView(picker, role), model_(picker), kind_(picker.kind())
    {}

    int heightFor(int) const override
    {
        const int line = textSize(font(), L"", 0, 0).cy;
        return std::max(units().down(usualHeight), line + units().down(4));
    }

    int ownWidth() const override
    {
        return textSize(font(), widestText(kind_), 0, DT_NOPREFIX).cx +
               units().across(buttonAndEdges);
    }

    std::optional<LRESULT> notified(const NMHDR& note) override
    {
        if (note.code != static_cast<UINT>(DTN_DATETIMECHANGE)) return {};
        const auto& change = reinterpret_cast<const NMDATETIMECHANGE&>(note);
        if (change.dwFlags == GDT_VALID && !(change.st == shown_))
            page().act(*this, [this, picked = change.st] { take(picked); });
        return 0;
    }

private:
    void makeWindows() override
    {
        const DWORD format =
            kind_ == PickerKind::date ? DTS_SHORTDATEFORMAT : DTS_TIMEFORMAT | DTS_UPDOWN;
        make(DATETIMEPICK_CLASSW, format | WS_TABSTOP | WS_GROUP);
    }

    /// The part that the field shows, with the rest of the value as it was. On the tool's thread.
    void take(const SYSTEMTIME& picked)
    {
        const DateParts held = partsOf(model_.value());
        if (kind_ == PickerKind::date)
            model_.setByPerson(dateOf(picked.wYear, picked.wMonth, picked.wDay, held.hour,
                                      held.minute, held.second));
        else
            model_.setByPerson(dateOf(held.year, held.month, held.day, picked.wHour, picked.wMinute,
                                      picked.wSecond));
    }

    Drawing ownDrawing() override
    {
        return [this, value = systemTimeOf(model_.value())] {
            // What the person is typing stays while the value is the one that was there before.
            SYSTEMTIME held{};
            SendMessageW(window(), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&held));
            shown_ = value;
            if (!(held == value))
                SendMessageW(window(), DTM_SETSYSTEMTIME, GDT_VALID,
                             reinterpret_cast<LPARAM>(&value));
        };
    }

    DateTimePicker& model_;
    const PickerKind kind_;
    SYSTEMTIME shown_{};
};

} // namespace

std::unique_ptr<ControlView> makePickerView(DateTimePicker& picker, ControlRole role)
{
    return std::make_unique<PickerView>(picker, role);
}

} // namespace mmc
