#include "sample/server_model.h"

#include <array>

namespace sample {

namespace {

constexpr std::array<std::string_view, processCount> processNames = {
    "KoCSMgr", "KoDirSync", "KoMsgStore", "KoNotify", "KoTelephony",
};

constexpr std::array<ComponentFacts, 32> componentFacts = {{
    {"AddressBook", "Address", Process::callServer},
    {"AdminAudit", "Audit", Process::directory},
    {"CallFlow", "CallSvc", Process::callServer},
    {"CallHandler", "Handler", Process::callServer},
    {"Codec", "Media", Process::telephony},
    {"Conversation", "Conv", Process::callServer},
    {"DirReader", "DirRead", Process::directory},
    {"DirSync", "Sync", Process::directory},
    {"EventBridge", "Events", Process::notifier},
    {"FaxGateway", "Fax", Process::telephony},
    {"GreetingStore", "Greet", Process::messageStore},
    {"LampQueue", "LampQ", Process::notifier},
    {"LicenseControl", "License", Process::callServer},
    {"LineSignal", "Line", Process::telephony},
    {"LogManager", "Log", Process::callServer},
    {"MailboxQuota", "Quota", Process::messageStore},
    {"MailboxStore", "Store", Process::messageStore},
    {"MediaStream", "Media", Process::telephony},
    {"MessageRelay", "Relay", Process::messageStore},
    {"MsgWaiting", "Mwi", Process::notifier},
    {"NotifyDispatch", "Notify", Process::notifier},
    {"NotifyMail", "NotMail", Process::notifier},
    {"NotifyPager", "NotPage", Process::notifier},
    {"NotifySchedule", "NotSched", Process::notifier},
    {"PhoneLink", "Link", Process::telephony},
    {"PortControl", "Ports", Process::telephony},
    {"Replication", "Repl", Process::directory},
    {"ResourceMonitor", "ResMon", Process::callServer},
    {"RuleEngine", "Rules", Process::callServer},
    {"TextToSpeech", "Tts", Process::callServer},
    {"", "CallData", Process::callServer},
    {"", "MsgData", Process::messageStore},
}};

} // namespace

std::string_view nameOf(Process process)
{
    return processNames[static_cast<std::size_t>(process)];
}

const ComponentFacts& factsOf(Component component)
{
    return componentFacts[static_cast<std::size_t>(component)];
}

} // namespace sample
