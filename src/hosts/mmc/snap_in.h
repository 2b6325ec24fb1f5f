#pragma once

#include "console/console.h"
#include "text/code_page.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <windows.h>

class Desktop;

namespace mmc {

/// A choice of languages.
struct ToolLanguages {
    std::string caption;            ///< what the choice is called
    std::vector<std::string> names; ///< of the languages
};

/// The tool behind a snap-in in one console: the model, and what the adapter asks of the program
/// around it. Everything here runs on the thread that opened it.
class Tool {
public:
    virtual ~Tool() = default;

    /// The model. The snap-in is not in it before `load`.
    virtual Console& console() = 0;

    /// How texts are encoded in lists of `ListText::serverCodePage`.
    virtual const CodePage& codePage() const = 0;

    /// Loads the snap-in into the model, once; nothing is selected. Raises what loading raises; it
    /// counts as loaded then.
    virtual void load() = 0;

    /// The turn to change the server, kept for as long as the result lives; null for a tool that
    /// knows no other programs, or for a sheet that changes nothing that others do. `sheet` is the
    /// one whose button the person pressed, null for a command; `notice` hears of a long wait.
    /// Raises 70, with a sentence, when another program keeps its turn too long.
    virtual std::shared_ptr<const void>
    takeTurn(OpenSheet* /*sheet*/, const std::function<void(const std::string&)>& /*notice*/)
    {
        return nullptr;
    }

    /// Unloads it, once; does nothing before `load`. Raises what unloading raises.
    virtual void unload() = 0;

    /// The console is ending, or the person wants it to: work under way, such as a gather, stops at
    /// its next progress point.
    virtual void cancelWork() = 0;

    /// Why the tool does not do what it should, as no server is on this machine or no driver of its
    /// database; a sentence for the person, or the empty text.
    virtual std::string complaint() const = 0;

    /// The languages that the person can have the tool's texts in. None while it isn't loaded, and
    /// for a tool that has one language alone.
    virtual ToolLanguages languages() { return {}; }

    /// Has what is shown from now on in one of them, by its place from 0. Raises run-time errors.
    virtual void chooseLanguage(std::size_t) {}
};

/// What a module's resources hold for the console, by number.
struct SnapInResources {
    HINSTANCE module = nullptr;
    WORD icon = 0;        ///< of the about box and of the root
    WORD smallImage = 0;  ///< bitmaps of the root, 16 and 32 pixels wide; their upper left pixel is
    WORD largeImage = 0;  ///< transparent
    WORD scopeImages = 0; ///< icons of `ScopeItem::image`, numbered on from here
};

/// A snap-in as the adapter offers it to management consoles: everything that differs from one to
/// the next.
struct SnapIn {
    CLSID classId;
    CLSID aboutId;
    GUID staticNodeType;

    /// Of the registry: the name that consoles list it by, who made it, and which version.
    std::wstring name;
    std::wstring provider;
    std::wstring version;

    /// What the about box shows, for an object that a console makes without a tool. Changes nothing
    /// on the machine.
    std::function<SnapInIdentity()> identity;

    /// A tool for one console; `desktop` outlives it. Raises run-time errors.
    std::function<std::unique_ptr<Tool>(Desktop& desktop)> open;

    SnapInResources resources;

    /// The images of `resources.scopeImages`, in their order: what `ScopeItem::image` may be.
    std::vector<std::string> imageNames;
};

} // namespace mmc
