#pragma once

/// Hears the signals by which the system asks the program to end, for a program with an event loop.
/// One that somebody switched off before stays off. A second signal of a kind ends the program at
/// once, as it would without this. One object at a time.
class EndSignals {
public:
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// A descriptor that has something to read once a signal has come; -1 where the system has none
    /// to give: then `came` is to be asked from time to time.
    int descriptor() const;

    /// Takes off what the signals have made to be read.
    void take();

    /// Whether one has come since the object was made; false where there is no object.
    static bool came();
};
