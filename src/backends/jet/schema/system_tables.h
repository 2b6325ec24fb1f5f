#pragma once

#include "backends/jet/schema/definition_writer.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace jet {

/// Where the four system tables lie in a new file.
namespace systemPage {
constexpr std::uint32_t objects = 2;
constexpr std::uint32_t permissions = 3;
constexpr std::uint32_t queries = 4;
constexpr std::uint32_t relationships = 5;
constexpr std::uint32_t maps = 6;
constexpr std::uint32_t objectsByName = 7;
constexpr std::uint32_t objectsById = 8;
constexpr std::uint32_t permissionsById = 9;
constexpr std::uint32_t objectRows = 14;
constexpr std::uint32_t permissionRows = 15;
constexpr std::uint32_t first = 16; ///< of the tables that the schema names
} // namespace systemPage

/// Rows of the page of maps.
namespace systemMap {
constexpr std::uint8_t properties =
    10; ///< pages of the catalog's property blocks; 11 the free ones
constexpr std::uint8_t count = 31;
} // namespace systemMap

struct SystemTable {
    TableDefinition table;
    DefinitionMarks marks;
};

/// MSysObjects, MSysACEs, MSysQueries and MSysRelationships, without rows.
std::vector<SystemTable> systemTables();

/// The stored forms of the identities that own objects and have rights to them.
namespace identity {
constexpr std::string_view engine = "\xA7\x31";
constexpr std::string_view admin = "\xA6\x33";
constexpr std::string_view users = "\xA7\x33";
constexpr std::string_view creator = "\xA7\x36";
} // namespace identity

/// A row of the catalog.
struct CatalogObject {
    std::uint32_t id;
    std::uint32_t parent;
    std::string_view name;
    std::uint16_t type;
    std::string_view owner;
    std::uint32_t flags;
};

/// What someone may do with an object.
struct Permission {
    std::uint32_t object;
    std::string_view identity;
    std::uint32_t rights;
    bool inherited;
};

/// The containers and system tables that every file holds.
const std::vector<CatalogObject>& systemObjects();
const std::vector<Permission>& systemPermissions();

constexpr std::uint32_t tablesContainer = 0x0F00'0001;

} // namespace jet
