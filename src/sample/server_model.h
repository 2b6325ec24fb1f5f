#pragma once

#include <cstddef>
#include <string_view>

namespace sample {

/// The processes that write logs, in the order of the registry.
enum class Process { callServer, directory, messageStore, notifier, telephony };
constexpr std::size_t processCount = 5;

/// "KoCSMgr": the key's name in the registry, and the part of the file names.
std::string_view nameOf(Process process);

/// Who speaks in a line. All but the last two are rows of the diagnostic grid; those two write the
/// records of a data file.
enum class Component {
    addressBook,
    adminAudit,
    callFlow,
    callHandler,
    codec,
    conversation,
    dirReader,
    dirSync,
    eventBridge,
    faxGateway,
    greetingStore,
    lampQueue,
    licenseControl,
    lineSignal,
    logManager,
    mailboxQuota,
    mailboxStore,
    mediaStream,
    messageRelay,
    msgWaiting,
    notifyDispatch,
    notifyMail,
    notifyPager,
    notifySchedule,
    phoneLink,
    portControl,
    replication,
    resourceMonitor,
    ruleEngine,
    textToSpeech,
    callRecord,
    messageRecord,
};

struct ComponentFacts {
    std::string_view name;   ///< in the diagnostic grid; empty for a data file's records
    std::string_view source; ///< the part of the process that names itself in the line
    Process process;
};

const ComponentFacts& factsOf(Component component);

inline bool writesRecords(Component component)
{
    return component >= Component::callRecord;
}

constexpr int portCount = 24;

} // namespace sample
