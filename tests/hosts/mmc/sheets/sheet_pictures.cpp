// Draws every page of the tool's sheets on a sample site into a folder, for eyes to look at:
//
//   sheet_pictures SITE FOLDER

#include "console/plain_sheet.h"
#include "console/shown_sheets.h"
#include "console/wizard_sheet.h"
#include "controls/controls.h"
#include "hosts/common/tool_on_site.h"
#include "hosts/mmc/sheets/sheet_on_show.h"
#include "support/fakes/fake_desktop.h"
#include "support/places.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

namespace mmc {

namespace {

/// A host without a face, on the site in a folder.
class Host final : public ToolOnSite {
public:
    Host(const std::string& folder, Desktop& desktop)
        : ToolOnSite(folder, built::data, HostFacts{}, SiteUse::change, desktop)
    {
        startChanges();
        load();
    }
    ~Host() { unload(); }
};

/// What a window shows, as a picture of 24 bits a pixel.
void savePicture(HWND window, const std::string& file)
{
    RECT area{};
    GetWindowRect(window, &area);
    const LONG width = area.right - area.left;
    const LONG height = area.bottom - area.top;
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    settle();
    const HDC source = GetWindowDC(window);
    const HDC memory = CreateCompatibleDC(source);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* pixels = nullptr;
    const HBITMAP picture = CreateDIBSection(source, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, picture);
    BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
    GdiFlush();

    const DWORD bytes = static_cast<DWORD>((width * 3 + 3) / 4 * 4 * height);
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof header + sizeof info.bmiHeader;
    header.bfSize = header.bfOffBits + bytes;
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&header), sizeof header);
    out.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
    out.write(static_cast<const char*>(pixels), bytes);

    SelectObject(memory, before);
    DeleteObject(picture);
    DeleteDC(memory);
    ReleaseDC(window, source);
    if (!out) throw std::runtime_error("a picture can't be written: " + file);
}

/// A sheet of a command of the tool, and a person's way through it.
class Walk {
public:
    Walk(Host& host, ToolSide& tool, const char* command, std::string folder)
        : tool_(tool), folder_(std::move(folder))
    {
        ShownSheets shown(host.console());
        host.console().clickMenuItem(command);
        sheet_ = shown.open().at(0);
        windows_ = std::make_unique<SheetOnShow>(tool_, sheet_);
    }
    ~Walk()
    {
        if (!windows_->gone()) windows_->frame().press(PSBTN_CANCEL);
        settle();
        windows_->gone();
        settle();
    }

    void save(const std::string& name)
    {
        savePicture(windows_->frame().window(), folder_ + "/" + name + ".bmp");
    }

    /// Presses Next, enabled or not.
    void next()
    {
        const int before = sheet_->currentPosition();
        windows_->frame().press(PSBTN_NEXT);
        settle();
        if (sheet_->currentPosition() == before)
            throw std::runtime_error("the page does not go on");
    }

    void tickALeaf()
    {
        for (const PageControl& declared : sheet_->currentPage().controls())
            if (auto* tree = dynamic_cast<TreeView*>(declared.control)) {
                TreeNode& group = tree->item(1);
                tree->expandByPerson(group, true);
                TreeNode* leaf = group.child();
                while (leaf->checked() && leaf->next()) leaf = leaf->next();
                tree->checkByPerson(*leaf, true);
            }
        settle();
    }

    void choose(int option)
    {
        for (const PageControl& declared : sheet_->currentPage().controls())
            if (auto* options = dynamic_cast<OptionButtonGroup*>(declared.control))
                options->click(option);
        settle();
    }

    OpenSheet& sheet() { return *sheet_; }

private:
    ToolSide& tool_;
    std::string folder_;
    std::shared_ptr<OpenSheet> sheet_;
    std::unique_ptr<SheetOnShow> windows_;
};

void gather(Host& host, ToolSide& tool, const std::string& folder)
{
    constexpr int timeFrame = 2;
    constexpr int completion = 5;
    Walk walk(host, tool, "mnuGatherLogFiles", folder);
    walk.save("gather-1-welcome");
    walk.choose(1);
    walk.next();
    walk.save("gather-2-logs");
    walk.tickALeaf();
    walk.next();
    walk.save("gather-4-progress");
    waitFor([&] { return walk.sheet().currentPosition() == completion; });
    settle();
    walk.save("gather-5-completion");

    Walk other(host, tool, "mnuGatherLogFiles", folder);
    other.choose(timeFrame);
    other.next();
    const DWORD start = GetTickCount();
    constexpr DWORD clockTick = 1200;
    waitFor([&] { return GetTickCount() - start > clockTick; });
    other.save("gather-3-time-frame");
}

void draw(const std::string& site, const std::string& folder)
{
    FakeDesktop desktop;
    Host host(site, desktop);
    host.console().currentView().select(host.console().root());
    ToolSide tool;
    {
        Walk walk(host, tool, "mnuConfigureMacroTrace", folder);
        walk.save("macro-1-welcome");
        walk.next();
        walk.tickALeaf();
        walk.save("macro-2-selection");
        walk.next();
        walk.save("macro-3-completion");
    }
    {
        Walk walk(host, tool, "mnuConfigureMicroTraces", folder);
        walk.save("micro-1-welcome");
        walk.next();
        walk.tickALeaf();
        walk.save("micro-2-selection");
        walk.next();
        walk.save("micro-3-completion");
    }
    Walk(host, tool, "mnuDisableAllTraces", folder).save("reset-1");
    Walk(host, tool, "mnuConfigureLogSettings", folder).save("log-settings");
    Walk(host, tool, "mnuChangeLanguage", folder).save("event-log-language");
    gather(host, tool, folder);
}

} // namespace

} // namespace mmc

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fprintf(stderr, "sheet_pictures SITE FOLDER\n");
        return 2;
    }
    try {
        mmc::draw(arguments[1], arguments[2]);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "sheet_pictures: %s\n", error.what());
        return 1;
    }
}
