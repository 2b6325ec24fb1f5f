#pragma once

#include <string>

/// The manual's topics that the window asks for by number; the first page has none.
namespace desktop::helpTopic {
constexpr int contents = 0;
constexpr int about = 430;

/// The topic that tells of a page of a wizard or sheet, by the page's name; `contents` for a page
/// that the manual does not know.
int ofPage(const std::string& name);
} // namespace desktop::helpTopic
