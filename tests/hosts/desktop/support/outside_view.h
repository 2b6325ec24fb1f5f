#pragma once

#include <nlohmann/json.hpp>

#include <map>
#include <string>
#include <vector>

namespace desktop {

/// A site as others see it while a window has it open.
class OutsideView {
public:
    explicit OutsideView(std::string site) : site_(std::move(site)) {}

    /// What orvandiag tells of it; a test failure and null where it fails.
    nlohmann::json told(std::vector<std::string> words) const;

    /// The rows of a query as the sqlite3 program prints them; a test failure where it fails.
    std::string sql(const std::string& query) const;

    /// The flag words of the diagnostic grid, or the default ones, by component.
    std::map<std::string, int> flags() const { return words("Flags"); }
    std::map<std::string, int> defaultFlags() const { return words("DefaultFlags"); }

    /// A value as registry.reg holds it, behind its equals sign; the empty text where it is none.
    /// `key` is the end of a key's path.
    std::string registryValue(const std::string& key, const std::string& name) const;

    /// How many events of a number the Application log holds.
    int events(int number) const;

    std::string text(const std::string& file) const;

private:
    std::map<std::string, int> words(const std::string& column) const;

    std::string site_;
};

} // namespace desktop
