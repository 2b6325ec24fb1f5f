#pragma once

/// Holds back the signals by which the system asks the program to end, for a program that has
/// points of its own where it can end in good order. What it starts from then on, threads and
/// programs, holds them back, too.
class HeldEndSignals {
public:
    HeldEndSignals();

    /// Takes off one that has come; false where none has.
    bool came();

    /// Lets the latest that was taken off do what it would have done, which as a rule ends the
    /// program. Does nothing where none was.
    void letGo() const;

private:
    int taken_ = 0; ///< the system's number of it
};
