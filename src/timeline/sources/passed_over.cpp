#include "timeline/sources/passed_over.h"

namespace timeline {

namespace {

constexpr std::size_t mostNames = 3;

} // namespace

void PassedOver::add(const std::string& name)
{
    if (++count_ <= mostNames) first_.push_back(name);
}

std::string PassedOver::sentence(const std::string& what, const std::string& whole,
                                 const std::string& one, const std::string& many) const
{
    std::string text = std::to_string(count_) + " " + what + (count_ == 1 ? "" : "s") + " of " +
                       whole + " " + (count_ == 1 ? one : many) + ": ";
    for (const std::string& name : first_) {
        if (&name != &first_.front()) text += ", ";
        text += name;
    }
    if (count_ > first_.size()) text += " and " + std::to_string(count_ - first_.size()) + " more";
    return text;
}

} // namespace timeline
