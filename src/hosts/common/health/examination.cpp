#include "hosts/common/health/examination.h"

#include "hosts/common/health/examined_server.h"
#include "hosts/common/health/health_checks.h"
#include "hosts/common/health/health_sentences.h"
#include "platform/desktop.h"
#include "runtime/run_time_error.h"

#include <exception>

namespace {

/// Nobody is shown anything while a server is looked at.
class UnseenDesktop final : public Desktop {
public:
    void messageBox(const std::string&, const std::string&, MessageIcon) override {}
    std::string pickFolder(const std::string&) override { return {}; }
    std::string pickFile(const std::string&) override { return {}; }
    void pumpMessages() override {}
    int showHelp(const std::string&, int) override { return 0; }
};

std::vector<HealthCheck> allChecks()
{
    std::vector<HealthCheck> all;
    for (const auto& some :
         {healthChecks::ofRegistry(), healthChecks::ofDatabase(), healthChecks::ofDescriptions(),
          healthChecks::ofLogs(), healthChecks::ofRights(), healthChecks::ofToolFolder()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

HealthReport reportOf(const HealthCheck& check, ExaminedServer& server)
try {
    return check.look(server);
} catch (const RunTimeError& error) {
    return health::notLookedAt(healthSentences::notLookedAt, {health::clauseOf(error)});
} catch (const std::exception& error) {
    return health::notLookedAt(healthSentences::notLookedAt, {error.what()});
}

HealthReport notOpened(const RunTimeError& error)
{
    using namespace healthSentences;
    HealthState state = HealthState::unusable;
    std::string_view remedy = letRead;
    if (error.number() == runTimeErrors::pathNotFound) {
        state = HealthState::missing;
        remedy = nameASite;
    } else if (error.number() == runTimeErrors::invalidFileFormat) {
        state = HealthState::damaged;
        remedy = mendTheFile;
    }
    return health::lacking(state, {serverNotOpened, {health::clauseOf(error)}}, remedy);
}

} // namespace

std::vector<Finding> health::examine(const OpenServer& open)
{
    Finding first{"server", healthSentences::server, true, {}};
    std::vector<Finding> findings;
    std::unique_ptr<ServerAccess> access;
    UnseenDesktop desktop;
    std::unique_ptr<ExaminedServer> server;
    try {
        access = open();
        access->database().waitAsOneRun();
        server = std::make_unique<ExaminedServer>(*access, desktop);
        first.report = access->lackOfServer()
                           ? lacking(HealthState::missing, {healthSentences::noServer, {}},
                                     healthSentences::goToServer)
                           : well({healthSentences::canBeRead, {}});
    } catch (const RunTimeError& error) {
        first.report = notOpened(error);
    }
    findings.push_back(std::move(first));
    for (const HealthCheck& check : allChecks())
        findings.push_back(
            {check.id, check.subject, check.needed,
             server ? reportOf(check, *server) : notLookedAt(healthSentences::afterServer)});
    return findings;
}
