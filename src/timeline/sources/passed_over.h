#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace timeline {

/// Names that have one thing in common, of which there may be thousands: a sentence names the first
/// few.
class PassedOver {
public:
    void add(const std::string& name);

    bool empty() const { return count_ == 0; }
    std::size_t count() const { return count_; }

    /// "1 file of FOLDER is none of these: a.png", "3 files of FOLDER are none of these: a.png,
    /// b.png, c.png", "… and 7 more", with a verb for one and one for many.
    std::string sentence(const std::string& what, const std::string& whole, const std::string& one,
                         const std::string& many) const;

private:
    std::size_t count_ = 0;
    std::vector<std::string> first_;
};

} // namespace timeline
