#pragma once

#include <cstdint>
#include <string>

/// One parsed line of a server log. Texts are bytes as the log holds them.
struct DiagnosticLine {
    std::string timeStamp;
    std::string source;
    std::int32_t traceNumber = 0;
    std::string component;
    std::int16_t traceLevel = 0;
    std::string thread; ///< this one, `port` and `callId` are empty without extended log fields
    std::string port;
    std::string callId;
    std::string trace;

    /// Empties every field and keeps the texts' room, so that a loop allocates no line anew.
    void clear();

    friend bool operator==(const DiagnosticLine&, const DiagnosticLine&) = default;
};

inline void DiagnosticLine::clear()
{
    for (std::string* text : {&timeStamp, &source, &component, &thread, &port, &callId, &trace})
        text->clear();
    traceNumber = 0;
    traceLevel = 0;
}
