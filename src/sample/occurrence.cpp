#include "sample/occurrence.h"

#include "sample/moment.h"

#include <array>

namespace sample {

namespace {

/// Names as the directory holds them, some with bytes beyond ASCII.
constexpr std::array<Subscriber, 40> subscribers = {{
    {"Adams, Carol", 4102},
    {"Andersson, G\xF6ran", 4105},
    {"Baker, Thomas", 4107},
    {"Bianchi, Paola", 4111},
    {"Brown, Denise", 4114},
    {"Carter, Miles", 4118},
    {"Chen, Lihua", 4120},
    {"Costa, Jo\xE3o", 4123},
    {"Dubois, Ren\xE9\x65", 4126},
    {"Evans, Rhys", 4130},
    {"Fischer, J\xFCrgen", 4133},
    {"Foster, Angela", 4136},
    {"Garc\xED\x61, Jos\xE9", 4201},
    {"Green, Samuel", 4204},
    {"Hall, Victoria", 4208},
    {"Harris, Peter", 4212},
    {"Ito, Kenji", 4215},
    {"Jensen, S\xF8ren", 4219},
    {"Johnson, Marcus", 4222},
    {"Kaur, Simran", 4226},
    {"King, Dorothy", 4230},
    {"Lef\xE8vre, Ana\xEFs", 4233},
    {"Lopez, Maria", 4237},
    {"Martin, Claire", 4240},
    {"Meyer, Stefan", 4301},
    {"Moore, Lisa", 4304},
    {"Nguyen, Minh", 4307},
    {"N\xFA\xF1\x65z, In\xE9s", 4311},
    {"O'Brien, Sean", 4314},
    {"Patel, Nisha", 4318},
    {"Reed, Walter", 4321},
    {"Rossi, Marco", 4325},
    {"Schmidt, Ulrike", 4329},
    {"Smith, Eleanor", 4332},
    {"Tanaka, Yuki", 4336},
    {"Turner, Grace", 4340},
    {"Walker, Brian", 4401},
    {"Weber, Martina", 4404},
    {"White, Jason", 4408},
    {"Young, Patricia", 4412},
}};

constexpr std::array<std::string_view, 4> reasons = {"no answer", "busy", "all calls", "direct"};
constexpr std::array<std::string_view, 3> greetings = {"Standard", "Busy", "Closed"};
constexpr std::array<std::string_view, 3> servers = {"MAIL02", "MAIL02", "MAIL05"};

constexpr std::size_t longestCallId = 40;
constexpr std::size_t usualCallId = 24;

void appendHex(std::string& text, std::uint64_t number, int digits)
{
    for (int digit = digits - 1; digit >= 0; --digit)
        text += "0123456789ABCDEF"[(number >> (4 * digit)) & 15U];
}

/// Ids have one usual length; calls from other switches bring their own, short or long.
std::string drawCallId(Random& random, std::size_t calls)
{
    std::size_t length = usualCallId;
    if (calls <= longestCallId)
        length = calls;
    else if (random.below(4) == 0)
        length = random.below(longestCallId + 1);
    std::string id;
    while (id.size() < length) {
        if (id.size() % 9 == 8)
            id += '-';
        else
            appendHex(id, random.next(), 1);
    }
    return id;
}

std::string drawCaller(Random& random)
{
    std::string number = random.below(2) == 0 ? "206555" : "425555";
    appendNumber(number, random.between(100, 9999), 4);
    return number;
}

void appendOwn(std::string& line, std::string_view name, const Occurrence& occurrence)
{
    if (name == "port")
        appendNumber(line, occurrence.port);
    else if (name == "id")
        line += occurrence.callId.empty() ? "without id" : occurrence.callId;
    else if (name == "ext")
        appendNumber(line, occurrence.subscriber.extension);
    else if (name == "name")
        line += occurrence.subscriber.name;
    else if (name == "caller")
        line += occurrence.caller;
    else if (name == "message")
        appendHex(line, occurrence.key, 8);
    else if (name == "object")
        appendHex(line, 0x51A0U + static_cast<unsigned>(occurrence.subscriber.extension), 6);
    else if (name == "sequence")
        appendNumber(line, 10000 + occurrence.sequence % 90000);
    else if (name == "change")
        appendNumber(line, 1500000 + occurrence.sequence);
    else if (name == "seconds")
        appendNumber(line, occurrence.seconds);
    else if (name == "waited")
        appendNumber(line, occurrence.waited);
    else if (name == "bytes")
        appendNumber(line, 8000 * occurrence.waited + 58);
    else if (name == "count")
        appendNumber(line, occurrence.newMessages);
}

void appendDrawn(std::string& line, std::string_view name, Random& random)
{
    if (name == "few")
        appendNumber(line, random.between(1, 9));
    else if (name == "small")
        appendNumber(line, random.between(11, 95));
    else if (name == "large")
        appendNumber(line, random.between(1200, 198000));
    else if (name == "percent")
        appendNumber(line, random.between(12, 97));
    else if (name == "hex")
        appendHex(line, random.next(), 8);
    else if (name == "trunk")
        appendNumber(line, random.between(1, 46));
    else if (name == "reason")
        line += random.of(reasons);
    else if (name == "greeting")
        line += random.of(greetings);
    else if (name == "server")
        line += random.of(servers);
    else if (name == "pager")
        appendNumber(line, random.between(5550100, 5550199));
}

} // namespace

Occurrence drawOccurrence(Random& random, int port, History& history)
{
    Occurrence drawn;
    drawn.subscriber = random.of(subscribers);
    drawn.port = port;
    if (port != 0) drawn.callId = drawCallId(random, history.calls++);
    drawn.caller = drawCaller(random);
    drawn.key = random.next();
    drawn.newMessages = static_cast<int>(random.between(1, 7));
    drawn.sequence = static_cast<std::int64_t>(history.occurrences++);
    return drawn;
}

void appendText(std::string& line, std::string_view text, const Occurrence& occurrence,
                Random& random)
{
    for (std::size_t open; (open = text.find('{')) != std::string_view::npos;) {
        const std::size_t close = text.find('}', open);
        const std::string_view name = text.substr(open + 1, close - open - 1);
        line += text.substr(0, open);
        const std::size_t before = line.size();
        appendOwn(line, name, occurrence);
        if (line.size() == before) appendDrawn(line, name, random);
        text.remove_prefix(close + 1);
    }
    line += text;
}

} // namespace sample
