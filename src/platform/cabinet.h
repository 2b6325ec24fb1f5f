#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class StoredBytes;

/// A file in a cabinet.
struct CabinetMember {
    std::string name;       ///< in UTF-8 and as it stands there: a text of a stranger's, no path
    std::uint64_t size = 0; ///< in bytes, as the cabinet tells it

    // When it was modified, by the clock on the wall where the cabinet was made; a damaged cabinet
    // may have a date that is none.
    int year = 1980;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// An open cabinet.
class Cabinet {
public:
    virtual ~Cabinet() = default;

    /// Its files, in the order in which reading them takes the least time.
    virtual const std::vector<CabinetMember>& members() const = 0;

    /// How many bytes have to be unpacked to read a member now, those in front of it included.
    virtual std::uint64_t effort(std::size_t member) const = 0;

    /// Hands out a member from its beginning to its end, piece by piece. Raises 321, with a
    /// sentence, for a damaged one, of which what lies in front of the damage was handed out; 57;
    /// and what `take` raises.
    virtual void read(std::size_t member,
                      const std::function<void(std::string_view piece)>& take) = 0;
};

/// Opens cabinets for reading.
class CabinetReader {
public:
    virtual ~CabinetReader() = default;

    /// Whether a file that begins with such bytes, its first 64 or more, may be a cabinet.
    virtual bool isCabinet(std::string_view head) const = 0;

    /// Raises 321 for what is no cabinet, or nothing of which can be read; 57.
    virtual std::unique_ptr<Cabinet> open(std::shared_ptr<const StoredBytes> bytes) const = 0;
};
