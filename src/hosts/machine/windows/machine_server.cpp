#include "hosts/machine/windows/machine_server.h"

#include "backends/site/site_turn.h"
#include "backends/windows/code_page.h"
#include "backends/windows/files/tool_path.h"
#include "core/registry_store.h"
#include "server/server_identity.h"
#include "system/environment.h"
#include "system/machine_path.h"

#include <filesystem>

namespace {

/// A part of the server's version, 0 where there is none or it has more than 16 bits.
Integer16 versionPart(const Registry& registry, const std::string& name)
{
    const auto value = registry.value(registryRoot::localMachine, baseKey, name);
    constexpr std::uint32_t most = 32'767;
    std::uint32_t number = 0;
    if (!value || value->bytes.size() != sizeof number) return Integer16(0);
    for (std::size_t at = sizeof number; at-- > 0;)
        number = number << 8 | static_cast<std::uint8_t>(value->bytes[at]);
    return Integer16(number > most ? 0 : static_cast<int>(number));
}

/// The form of the lines that the server's version writes.
LogFields logFieldsOf(const Registry& registry)
{
    ServerVersion version;
    version.major = versionPart(registry, "MajorVersion");
    version.minor = versionPart(registry, "MinorVersion");
    return mdlOrvan::logsExtendedFields(version) ? LogFields::extended : LogFields::basic;
}

WindowsHostFacts hostFactsOf(const MachineFacts& facts)
{
    WindowsHostFacts host;
    host.module = static_cast<HMODULE>(facts.module);
    host.folder = facts.toolFolder.empty() ? "" : machinePath(plainPath(facts.toolFolder));
    host.developmentHost = facts.developmentHost;
    host.interrupted = facts.interrupted;
    return host;
}

} // namespace

bool machineIsAServer()
{
    return true;
}

std::unique_ptr<ServerAccess> openMachine(const MachineFacts& facts)
{
    return std::make_unique<MachineServer>(facts);
}

MachineServer::MachineServer(const MachineFacts& facts)
    : reporter_(logFieldsOf(registry_)), eventReporter_(reporter_), module_(hostFactsOf(facts)),
      xml_(files_, machineCodePage()),
      traceDatabases_([this](const std::string& path) { return machinePath(path); },
                      machineCodePage())
{}

Platform MachineServer::platform(Desktop& desktop)
{
    return {files_,     registry_,      clock_,  timeZone_,  eventReporter_, eventLogExporter_,
            processes_, workstation_,   module_, languages_, desktop,        database_,
            xml_,       traceDatabases_};
}

CodePage MachineServer::codePage() const
{
    return machineCodePage();
}

std::string MachineServer::machinePath(const std::string& path)
{
    return path.empty() ? path : ::machinePath(plainPath(path));
}

/// Null where this user may keep no file for it: such a one changes next to nothing.
HeldTurn MachineServer::takeTurn(const std::function<void(const std::string&)>& notice)
{
    const std::string data = environmentVariable("ProgramData").value_or("");
    if (data.empty()) return nullptr;
    const std::string folder = data + "\\orvandiag";
    std::error_code failed;
    std::filesystem::create_directories(filePathOf(folder), failed);
    if (failed) return nullptr;
    return std::make_shared<SiteTurn>(folder, SiteTurn::usualPatience, notice, name());
}

std::int64_t MachineServer::endOfEvents() const
{
    return static_cast<std::int64_t>(eventReporter_.events().size());
}

std::vector<ReportedEvent> MachineServer::eventsSince(std::int64_t place) const
{
    const auto& events = eventReporter_.events();
    return {events.begin() + place, events.end()};
}

std::optional<Sentence> MachineServer::lackOfServer() const
{
    if (registry_.keyExists(registryRoot::localMachine, baseKey)) return {};
    return Sentence{"No Orvan server is installed on this computer: its registry has no key "
                    "HKEY_LOCAL_MACHINE\\%1.",
                    {baseKey}};
}
