#include "sample/scenarios.h"

#include <array>

namespace sample {

namespace {

using C = Component;

constexpr std::array synchronisation = std::to_array<Step>({
    {C::dirSync, 2, 0, 0, "Cycle {sequence} starts, last change number {change}"},
    {C::dirReader, 6, 5, 60, "Connection {few} to OrvanDirDb is reused"},
    {C::dirReader, 2, 2, 40, "SELECT of changed subscribers since {change}"},
    {C::dirReader, 3, 5, 200, "{few} rows in {small} ms"},
    {C::dirSync, 4, 2, 40, "Subscriber {name} ({ext}) changed: DisplayName, Extension"},
    {C::dirSync, 7, 1, 10, "Change numbers are consecutive"},
    {C::replication, 3, 20, 300, "Location East: {few} changes sent in message {sequence}"},
    {C::replication, 5, 30, 900, "Location East: {few} objects applied"},
    {C::dirSync, 2, 1, 20, "Cycle {sequence} ends after {small} ms"},
});

constexpr std::array quietSynchronisation = std::to_array<Step>({
    {C::dirSync, 2, 0, 0, "Cycle {sequence} starts, last change number {change}"},
    {C::dirReader, 4, 2, 40, "Cache: {large} hits, {small} misses"},
    {C::dirSync, 2, 10, 90, "Cycle {sequence} ends, nothing changed"},
});

constexpr std::array subscriberAdded = std::to_array<Step>({
    {C::adminAudit, 2, 0, 0, "Administrator mweber adds subscriber {name}, extension {ext}"},
    {C::dirSync, 3, 200, 900, "Subscriber {name} added as {object}"},
    {C::mailboxStore, 13, 10, 90, "Mailbox {ext} created on {server}"},
    {C::greetingStore, 3, 10, 90, "Recorded name of {name} saved, {large} bytes"},
    {C::dirReader, 8, 900, 3000, "Query took {large} ms: subscribers by display name"},
});

constexpr std::array heartbeat = std::to_array<Step>({
    {C::phoneLink, 7, 0, 0, "Heartbeat {sequence} answered after {small} ms"},
});

constexpr std::array linkLost = std::to_array<Step>({
    {C::phoneLink, 1, 0, 0, "Heartbeat {sequence} not answered within 2000 ms"},
    {C::phoneLink, 2, 800, 2500, "Link to PBX-A is down"},
    {C::portControl, 1, 1, 9, "Calls are taken without integration data"},
    {C::phoneLink, 2, 4000, 20000, "Link to PBX-A is up again, packet {sequence} expected"},
});

constexpr std::array portFigures = std::to_array<Step>({
    {C::portControl, 16, 0, 0, "{few} of 24 ports busy, highest today 1{few}"},
    {C::portControl, 22, 1, 9, "Watchdog: all ports answered within {small} ms"},
    {C::licenseControl, 2, 1, 9, "{few} of 24 voice sessions in use"},
});

constexpr std::array storeFigures = std::to_array<Step>({
    {C::mailboxStore, 9, 0, 0, "{few} sessions with {server}, {large} calls so far"},
    {C::messageRelay, 8, 1, 9, "Queue: {few} waiting, oldest {small} ms"},
    {C::mailboxQuota, 3, 1, 20, "Mailbox {ext} of {name} is near its limit, {percent} % in use"},
});

constexpr std::array storeSlow = std::to_array<Step>({
    {C::mailboxStore, 1, 0, 0, "{server} took {large} ms to open mailbox {ext}"},
    {C::mailboxStore, 16, 400, 900, "Mailbox {ext}: try 2 of 3"},
    {C::mailboxStore, 2, 20, 200, "Mailbox {ext} opened on {server} in {small} ms"},
});

constexpr std::array notifierFigures = std::to_array<Step>({
    {C::lampQueue, 7, 0, 0, "{few} requests waiting, {few} in doubt"},
    {C::notifyDispatch, 8, 1, 9, "{few} attempts due within 5 min"},
});

constexpr std::array mailNotification = std::to_array<Step>({
    {C::notifyDispatch, 10, 0, 0, "{name}: interval of 30 min is over"},
    {C::notifyMail, 2, 2, 20, "Mail for {name}: {count} new messages"},
    {C::notifyMail, 3, 5, 90, "Mail sent to {ext}@example.com by {server}"},
    {C::notifyMail, 4, 20, 300, "{server} answers: 250 2.0.0 accepted for delivery"},
});

constexpr std::array lampResynchronisation = std::to_array<Step>({
    {C::msgWaiting, 6, 0, 0, "Resynchronisation: extensions {ext} and above"},
    {C::mailboxStore, 6, 5, 60, "Mailbox {ext}: {count} new, {small} in all"},
    {C::msgWaiting, 5, 1, 9, "{ext}: {count} new messages, lamp is as it should be"},
    {C::msgWaiting, 10, 1, 9, "{few} extensions without a station skipped"},
});

constexpr std::array resources = std::to_array<Step>({
    {C::resourceMonitor, 2, 0, 0, "Private bytes {large} KB, working set {large} KB"},
    {C::resourceMonitor, 3, 0, 2, "Processor {percent} %, queue {few}"},
    {C::resourceMonitor, 5, 0, 2, "{large} handles, {small} threads"},
});

constexpr std::array longDump = std::to_array<Step>({
    {C::callFlow, 7, 0, 0,
     "Call data as received, whole packet: called={ext}, calling={caller}, reason={reason}, "
     "trunk={trunk}, name={name}, display={name}/{ext}/{server}, history=[1:{caller}>{ext} busy; "
     "2:{ext}>{ext} no answer after 4 rings; 3:{ext}>7900 voice mail], bearer=speech, "
     "progress=in-band, redirect=[{ext},{ext},{ext},{ext}], raw={hex} {hex} {hex} {hex} {hex} "
     "{hex} "
     "{hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} "
     "{hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex} {hex}, checksum={hex}, end"},
});

constexpr std::array services = std::to_array<Scenario>({
    {synchronisation, 8, 8, false},
    {quietSynchronisation, 10, 40, false},
    {subscriberAdded, 1, 0, false},
    {heartbeat, 16, 60, false},
    {linkLost, 1, 1, false},
    {portFigures, 6, 20, false},
    {storeFigures, 5, 20, false},
    {storeSlow, 1, 1, false},
    {notifierFigures, 8, 30, false},
    {mailNotification, 4, 2, false},
    {lampResynchronisation, 2, 24, false},
    {resources, 5, 20, false},
    {longDump, 1, 1, false},
});

} // namespace

std::span<const Scenario> serviceScenarios()
{
    return services;
}

} // namespace sample
