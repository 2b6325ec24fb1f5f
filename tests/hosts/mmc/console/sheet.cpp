#include "hosts/mmc/console/sheet.h"

#include "hosts/mmc/console/wide_text.h"

#include <algorithm>
#include <stdexcept>

namespace stand_in {

namespace {

std::string windowText(HWND window)
{
    wchar_t text[4096] = {};
    SendMessageW(window, WM_GETTEXT, 4096, reinterpret_cast<LPARAM>(text));
    return narrow(text);
}

std::wstring classOf(HWND window)
{
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

bool isClass(HWND window, const wchar_t* name)
{
    return lstrcmpiW(classOf(window).c_str(), name) == 0;
}

// WS_VISIBLE rather than `IsWindowVisible`: a page may be looked at while its sheet is drawn.
bool isShown(HWND window)
{
    return (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

std::vector<HWND> childrenOf(HWND page)
{
    std::vector<HWND> found;
    EnumChildWindows(
        page,
        [](HWND child, LPARAM list) -> BOOL {
            if (isShown(child)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

std::string withoutMark(std::string caption)
{
    std::erase(caption, '&');
    return caption;
}

} // namespace

std::string Sheet::title() const
{
    return windowText(window_);
}

HWND Sheet::buttonWindow(Button button) const
{
    switch (button) {
    case Button::back:
        return GetDlgItem(window_, 0x3023);
    case Button::next:
        return GetDlgItem(window_, 0x3024);
    case Button::finish:
        return GetDlgItem(window_, 0x3025);
    case Button::cancel:
        return GetDlgItem(window_, IDCANCEL);
    case Button::ok:
        return GetDlgItem(window_, IDOK);
    case Button::apply:
        return GetDlgItem(window_, 0x3021);
    case Button::help:
        return GetDlgItem(window_, IDHELP);
    }
    return nullptr;
}

bool Sheet::isEnabled(Button button) const
{
    const HWND shown = buttonWindow(button);
    return shown && isShown(shown) && IsWindowEnabled(shown);
}

std::string Sheet::textOf(Button button) const
{
    return withoutMark(windowText(buttonWindow(button)));
}

void Sheet::press(Button button)
{
    const HWND pressed = buttonWindow(button);
    if (!isEnabled(button)) fail("a button of the sheet is not there, or disabled");
    PostMessageW(pressed, BM_CLICK, 0, 0);
    settle();
}

HWND Sheet::page() const
{
    return reinterpret_cast<HWND>(SendMessageW(window_, PSM_GETCURRENTPAGEHWND, 0, 0));
}

std::string Sheet::pageText() const
{
    std::string all;
    for (const HWND child : childrenOf(page())) {
        const std::string text = windowText(child);
        if (!text.empty()) all += text + "\n";
    }
    return all;
}

HWND Sheet::control(const wchar_t* windowClass, int number) const
{
    for (const HWND child : childrenOf(page()))
        if (isClass(child, windowClass) && number-- == 0) return child;
    fail("there is no such control of the class " + narrow(windowClass));
}

int Sheet::count(const wchar_t* windowClass) const
{
    const auto children = childrenOf(page());
    return static_cast<int>(std::count_if(children.begin(), children.end(),
                                          [&](HWND child) { return isClass(child, windowClass); }));
}

HWND Sheet::button(const std::string& caption) const
{
    for (const HWND child : childrenOf(page()))
        if (isClass(child, L"Button") && withoutMark(windowText(child)) == caption) return child;
    fail("there is no button \"" + caption + "\"");
}

void Sheet::click(const std::string& caption)
{
    const HWND clicked = button(caption);
    if (!IsWindowEnabled(clicked)) fail("\"" + caption + "\" is disabled");
    PostMessageW(clicked, BM_CLICK, 0, 0);
    settle();
}

bool Sheet::isTicked(const std::string& caption) const
{
    return SendMessageW(button(caption), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

std::string Sheet::edit(int number) const
{
    return windowText(control(L"Edit", number));
}

void Sheet::type(const std::string& text, int number)
{
    const HWND field = control(L"Edit", number);
    const std::wstring wide = widen(text);
    SendMessageW(field, EM_SETSEL, 0, -1);
    SendMessageW(field, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(wide.c_str()));
    settle();
}

std::vector<std::string> Sheet::comboItems(int number) const
{
    const HWND combo = control(L"ComboBox", number);
    std::vector<std::string> items;
    const LRESULT count = SendMessageW(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT item = 0; item < count; ++item) {
        wchar_t text[512] = {};
        SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(item),
                     reinterpret_cast<LPARAM>(text));
        items.push_back(narrow(text));
    }
    return items;
}

std::string Sheet::comboChoice(int number) const
{
    return windowText(control(L"ComboBox", number));
}

void Sheet::chooseInCombo(const std::string& item, int number)
{
    const HWND combo = control(L"ComboBox", number);
    const auto items = comboItems(number);
    const auto found = std::find(items.begin(), items.end(), item);
    if (found == items.end()) fail("the list has no \"" + item + "\"");
    SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(found - items.begin()), 0);
    SendMessageW(GetParent(combo), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(combo));
    settle();
}

void Sheet::chooseInList(const std::string& item, int number)
{
    const HWND list = control(L"ListBox", number);
    const std::wstring text = widen(item);
    const LRESULT found = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                       reinterpret_cast<LPARAM>(text.c_str()));
    if (found == LB_ERR) fail("the list has no \"" + item + "\"");
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(found), 0);
    SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    settle();
}

SYSTEMTIME Sheet::moment(int number) const
{
    SYSTEMTIME shown{};
    SendMessageW(control(DATETIMEPICK_CLASSW, number), DTM_GETSYSTEMTIME, 0,
                 reinterpret_cast<LPARAM>(&shown));
    return shown;
}

void Sheet::setMoment(int number, const SYSTEMTIME& moment)
{
    const HWND picker = control(DATETIMEPICK_CLASSW, number);
    SYSTEMTIME set = moment;
    SendMessageW(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&set));
    NMDATETIMECHANGE change{};
    change.nmhdr = {picker, static_cast<UINT_PTR>(GetDlgCtrlID(picker)),
                    static_cast<UINT>(DTN_DATETIMECHANGE)};
    change.dwFlags = GDT_VALID;
    change.st = moment;
    SendMessageW(GetParent(picker), WM_NOTIFY, change.nmhdr.idFrom,
                 reinterpret_cast<LPARAM>(&change));
    settle();
}

void Sheet::waitUntil(const std::function<bool()>& holds, const char* what, int milliseconds) const
{
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    while (!holds()) {
        if (GetTickCount64() > end) fail(std::string("waited in vain for ") + what);
        Sleep(10);
    }
}

void Sheet::waitForText(const std::string& part, int milliseconds) const
{
    waitUntil([&] { return pageText().find(part) != std::string::npos; }, part.c_str(),
              milliseconds);
}

void Sheet::settle() const
{
    const HANDLE handled = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    if (PostMessageW(marker_, WM_APP, reinterpret_cast<WPARAM>(handled), 0)) {
        for (int tries = 0; tries < 6000; ++tries)
            if (WaitForSingleObject(handled, 10) == WAIT_OBJECT_0 || !IsWindow(marker_)) break;
    }
    CloseHandle(handled);
}

void Sheet::fail(const std::string& what) const
{
    throw std::runtime_error(what + "; the sheet \"" + title() + "\" shows:\n" + pageText());
}

} // namespace stand_in
