#pragma once

#include <string>
#include <vector>

/// A call of the program that makes no sense, or names what is not there, and what it is told.
struct WrongCall {
    std::string line;               ///< as it stands in the table
    std::vector<std::string> words; ///< behind the program's name
    int status = 0;
    std::string message; ///< on standard error, without "orvandiag: " and the last line end
};

/// The calls of `tests/end_to_end/wrong_usage.txt`, in their order. One that is not as the first
/// lines of the file say fails the test.
std::vector<WrongCall> wrongCalls();
