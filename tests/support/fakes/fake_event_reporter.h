#pragma once

#include "platform/event_reporter.h"

/// An event reporter that remembers what was reported and formats raw lines as a server does.
class FakeEventReporter final : public EventReporter {
public:
    struct Report {
        std::string source;
        std::int32_t handle = 0;
        int type = 0;
        std::int32_t id = 0;
        std::vector<std::string> inserts;

        friend bool operator==(const Report&, const Report&) = default;
    };

    /// The handle that `registerTool` gives.
    static constexpr std::int32_t toolHandle = 77;

    /// Raw lines carry thread, port and call id.
    FakeEventReporter& extended(bool fields = true);

    /// The server installs no reporter: every call raises 429.
    FakeEventReporter& missing();

    /// From now on every call raises `number`; 0 ends that.
    FakeEventReporter& failing(int number);

    const std::vector<Report>& reports() const { return reports_; }

    /// Names of the calls made, in order, `formatTraceLine` apart.
    const std::vector<std::string>& calls() const { return calls_; }
    int linesFormatted() const { return linesFormatted_; }
    const std::string& registeredName() const { return registeredName_; }

    void startUp() override;
    void completeStartUp() override;
    std::int32_t registerTool(const std::string& moduleName) override;
    void report(const std::string& source, std::int32_t handle, int type, std::int32_t id,
                const std::vector<std::string>& inserts) override;
    void formatTraceLine(std::string_view rawLine, std::string& formatted) override;

private:
    void call(const char* name);

    bool extended_ = false;
    int fault_ = 0;
    int linesFormatted_ = 0;
    std::string registeredName_;
    std::vector<Report> reports_;
    std::vector<std::string> calls_;
};
