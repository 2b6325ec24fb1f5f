#pragma once

namespace cli {

/// Takes Ctrl-C, a polite termination and the end of the terminal as a wish instead of an end,
/// while it lives. A program that was started to outlive its terminal goes on.
class InterruptWish {
public:
    /// What the next ones do: end the program in the usual way, should the first one not be heard,
    /// or nothing, where the program ends soon and has something to clear away.
    enum class Repeated { ends, isIgnored };

    explicit InterruptWish(Repeated repeated = Repeated::ends);
    ~InterruptWish();
    InterruptWish(const InterruptWish&) = delete;
    InterruptWish& operator=(const InterruptWish&) = delete;

    bool made() const;
};

/// Whether a wish was made since the latest `InterruptWish` came to life.
bool interruptNoted();

} // namespace cli
