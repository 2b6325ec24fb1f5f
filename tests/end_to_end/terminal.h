#pragma once

#include <string>
#include <vector>

/// What orvandiag writes, results and messages together, where both go to a terminal: the bytes as
/// they are, without the progress line's own sequence that begins it anew.
std::string onTerminal(std::vector<std::string> words, const std::string& folder);
