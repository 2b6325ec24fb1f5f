#include "hosts/mmc/sheets/page_fonts.h"

#include "system/windows/windows_calls.h"

#include <cstdlib>
#include <cstring>

namespace mmc {

namespace {

constexpr UINT usualDensity = 96;

/// A call of newer systems, or null.
template <typename Call>
Call callOf(const char* name)
{
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
    Call call = nullptr;
    static_assert(sizeof call == sizeof found);
    std::memcpy(&call, &found, sizeof call);
    return call;
}

UINT systemDensity()
{
    const HDC screen = GetDC(nullptr);
    const int density = screen ? GetDeviceCaps(screen, LOGPIXELSY) : 0;
    if (screen) ReleaseDC(nullptr, screen);
    return density > 0 ? static_cast<UINT>(density) : usualDensity;
}

UINT densityOf(HWND window)
{
    using Ask = UINT(WINAPI*)(HWND);
    static const auto ask = callOf<Ask>("GetDpiForWindow");
    const UINT density = ask && window ? ask(window) : 0;
    return density > 0 ? density : systemDensity();
}

/// A device context that texts are measured in.
class MeasuringContext {
public:
    explicit MeasuringContext(HFONT font) : context_(GetDC(nullptr))
    {
        before_ = SelectObject(context_, font);
    }
    ~MeasuringContext()
    {
        SelectObject(context_, before_);
        ReleaseDC(nullptr, context_);
    }
    MeasuringContext(const MeasuringContext&) = delete;
    MeasuringContext& operator=(const MeasuringContext&) = delete;

    HDC get() const { return context_; }

private:
    HDC context_;
    HGDIOBJ before_;
};

} // namespace

LOGFONTW messageFont(HWND window)
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW font = metrics.lfMessageFont;
    const auto density = static_cast<int>(densityOf(window));
    const auto told = static_cast<int>(systemDensity());
    if (density != told) font.lfHeight = MulDiv(font.lfHeight, density, told);
    return font;
}

int pointsOf(const LOGFONTW& font)
{
    constexpr int pointsOfInch = 72;
    return MulDiv(std::abs(font.lfHeight), pointsOfInch, static_cast<int>(systemDensity()));
}

SIZE textSize(HFONT font, const std::wstring& text, int width, UINT format)
{
    const MeasuringContext context(font);
    RECT area{0, 0, width, 0};
    const UINT wrap = width > 0 ? DT_WORDBREAK : 0;
    // An empty text has the height of a line.
    const std::wstring measured = text.empty() ? L" " : text;
    DrawTextW(context.get(), measured.c_str(), static_cast<int>(measured.size()), &area,
              DT_CALCRECT | DT_EXPANDTABS | wrap | format);
    return {area.right, area.bottom};
}

PageFonts::PageFonts(HWND window) : base_(messageFont(window)) {}

PageFonts::~PageFonts()
{
    forget();
}

void PageFonts::forget()
{
    for (const auto& [key, font] : fonts_) DeleteObject(font);
    fonts_.clear();
    measured_ = false;
}

HFONT PageFonts::font(const ControlFont& asked, bool bold)
{
    const ControlFont& named = asked.name.empty() ? pageFont_ : asked;
    HFONT& font = fonts_[Key{named.name, named.name.empty() ? 0 : named.charset, bold}];
    if (font) return font;
    LOGFONTW wanted = base_;
    if (!named.name.empty()) {
        wanted.lfCharSet = static_cast<BYTE>(named.charset);
        const std::wstring name = wideOf(named.name).substr(0, LF_FACESIZE - 1);
        std::wmemcpy(wanted.lfFaceName, name.c_str(), name.size() + 1);
    }
    if (bold) wanted.lfWeight = FW_BOLD;
    font = CreateFontIndirectW(&wanted);
    return font;
}

bool PageFonts::setPageFont(const ControlFont& font)
{
    if (font == pageFont_) return false;
    pageFont_ = font;
    measured_ = false;
    return true;
}

void PageFonts::measureScreen(HWND window)
{
    base_ = messageFont(window);
    forget();
}

DialogUnits PageFonts::units()
{
    if (measured_) return units_;
    const MeasuringContext context(font({}));
    TEXTMETRICW metrics{};
    GetTextMetricsW(context.get(), &metrics);
    static constexpr wchar_t letters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int count = 52;
    SIZE size{};
    GetTextExtentPoint32W(context.get(), letters, count, &size);
    units_.width = (size.cx / (count / 2) + 1) / 2;
    units_.height = metrics.tmHeight;
    measured_ = true;
    return units_;
}

} // namespace mmc
