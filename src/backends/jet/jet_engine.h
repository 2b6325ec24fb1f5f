#pragma once

#include "platform/trace_database.h"
#include "text/code_page.h"

#include <functional>
#include <string>

namespace jet {

/// Opens trace databases that are Jet 4 files.
class JetEngine final : public TraceDatabaseEngine {
public:
    /// Makes a path of the tool into one of this machine.
    using Locate = std::function<std::string(const std::string&)>;

    /// `codePage` is that of the texts that fields are set to.
    explicit JetEngine(Locate locate, const CodePage& codePage = windows1252());

    std::unique_ptr<TraceDatabase> openDatabase(const std::string& path) override;

private:
    Locate locate_;
    CodePage codePage_;
};

} // namespace jet
