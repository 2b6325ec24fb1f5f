#pragma once

/// Takes Ctrl-C (and a polite termination) as a wish instead of an end, while it lives.
///
/// A second Ctrl-C ends the program in the usual way, should the first one not be heard.
class InterruptWish {
public:
    InterruptWish();
    ~InterruptWish();
    InterruptWish(const InterruptWish&) = delete;
    InterruptWish& operator=(const InterruptWish&) = delete;

    bool made() const;
};
