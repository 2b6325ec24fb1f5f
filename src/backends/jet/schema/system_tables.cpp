#include "backends/jet/schema/system_tables.h"

namespace jet {

namespace {

constexpr unsigned char fixedFlags = 0x13;
constexpr unsigned char variableFlags = 0x12;
constexpr unsigned char identityFlags = 0x32;

/// A system table as it is put together.
class Builder {
public:
    Builder(const char* name, std::uint32_t page, std::uint8_t firstMap)
    {
        built_.table.name = name;
        built_.table.page = page;
        built_.table.ownedPages = {systemPage::maps, firstMap};
        built_.table.freePages = nextMap(firstMap);
        built_.marks.system = true;
        nextMap_ = static_cast<std::uint8_t>(firstMap + 2);
    }

    Builder& fixed(const char* name, ColumnType type, std::uint16_t length)
    {
        add(name, type, length, fixedFlags).fixed = true;
        return *this;
    }
    Builder& text(const char* name) { return variable(name, ColumnType::text, 510); }
    Builder& binary(const char* name, unsigned char flags = variableFlags)
    {
        return variable(name, ColumnType::binary, 510, flags);
    }
    Builder& longValue(const char* name, ColumnType type)
    {
        Column& column = add(name, type, 0, variableFlags);
        column.ownedPages = {systemPage::maps, nextMap_};
        column.freePages = nextMap(nextMap_);
        nextMap_ = static_cast<std::uint8_t>(nextMap_ + 2);
        return *this;
    }
    Builder& index(const char* name, std::vector<std::uint16_t> columns, unsigned char flags,
                   std::uint32_t root, bool primary = false)
    {
        built_.marks.indexes.push_back({name, std::move(columns), flags, primary, root, 0,
                                        RowPointer{systemPage::maps, nextMap_++}});
        return *this;
    }
    SystemTable build()
    {
        layOutColumns(built_.table);
        return std::move(built_);
    }

private:
    static RowPointer nextMap(std::uint8_t map)
    {
        return {systemPage::maps, static_cast<std::uint8_t>(map + 1)};
    }
    Column& add(const char* name, ColumnType type, std::uint16_t length, unsigned char flags)
    {
        Column column;
        column.name = name;
        column.type = type;
        column.length = length;
        built_.table.columns.push_back(column);
        built_.marks.columnFlags.push_back(flags);
        return built_.table.columns.back();
    }
    Builder& variable(const char* name, ColumnType type, std::uint16_t length,
                      unsigned char flags = variableFlags)
    {
        add(name, type, length, flags);
        return *this;
    }

    SystemTable built_;
    std::uint8_t nextMap_ = 0;
};

SystemTable objectsTable()
{
    return Builder("MSysObjects", systemPage::objects, 0)
        .fixed("Id", ColumnType::longInteger, 4)
        .fixed("ParentId", ColumnType::longInteger, 4)
        .text("Name")
        .fixed("Type", ColumnType::integer, 2)
        .fixed("DateCreate", ColumnType::dateTime, 8)
        .fixed("DateUpdate", ColumnType::dateTime, 8)
        .binary("Owner", identityFlags)
        .fixed("Flags", ColumnType::longInteger, 4)
        .longValue("Database", ColumnType::memo)
        .longValue("Connect", ColumnType::memo)
        .text("ForeignName")
        .binary("RmtInfoShort")
        .longValue("RmtInfoLong", ColumnType::ole)
        .longValue("Lv", ColumnType::ole)
        .longValue("LvProp", ColumnType::ole)
        .longValue("LvModule", ColumnType::ole)
        .longValue("LvExtra", ColumnType::ole)
        .index("ParentIdName", {1, 2}, 0x81, systemPage::objectsByName)
        .index("Id", {0}, 0x81, systemPage::objectsById, true)
        .build();
}

SystemTable permissionsTable()
{
    return Builder("MSysACEs", systemPage::permissions, 18)
        .fixed("ObjectId", ColumnType::longInteger, 4)
        .binary("SID", identityFlags)
        .fixed("ACM", ColumnType::longInteger, 4)
        .fixed("FInheritable", ColumnType::boolean, 1)
        .index("ObjectId", {0}, 0x88, systemPage::permissionsById)
        .build();
}

SystemTable queriesTable()
{
    return Builder("MSysQueries", systemPage::queries, 21)
        .fixed("ObjectId", ColumnType::longInteger, 4)
        .fixed("Attribute", ColumnType::byte, 1)
        .binary("Order")
        .text("Name1")
        .text("Name2")
        .longValue("Expression", ColumnType::memo)
        .fixed("Flag", ColumnType::integer, 2)
        .fixed("LvExtra", ColumnType::longInteger, 4)
        .index("ObjectIdAttribute", {0, 1, 2}, 0x81, 10, true)
        .build();
}

SystemTable relationshipsTable()
{
    return Builder("MSysRelationships", systemPage::relationships, 26)
        .text("szRelationship")
        .fixed("grbit", ColumnType::longInteger, 4)
        .fixed("ccolumn", ColumnType::longInteger, 4)
        .fixed("icolumn", ColumnType::longInteger, 4)
        .text("szObject")
        .text("szColumn")
        .text("szReferencedObject")
        .text("szReferencedColumn")
        .index("szRelationship", {0}, 0x82, 11)
        .index("szObject", {4}, 0x82, 12)
        .index("szReferencedObject", {6}, 0x82, 13)
        .build();
}

constexpr std::uint32_t root = 0x0F00'0000;
constexpr std::uint32_t databases = 0x0F00'0002;
constexpr std::uint32_t relationships = 0x0F00'0003;
constexpr std::uint32_t databaseObject = 0x1000'0000;
constexpr std::uint32_t systemFlag = 0x8000'0000;
constexpr std::uint16_t tableType = 1;
constexpr std::uint16_t databaseType = 2;
constexpr std::uint16_t containerType = 3;

} // namespace

std::vector<SystemTable> systemTables()
{
    return {objectsTable(), permissionsTable(), queriesTable(), relationshipsTable()};
}

const std::vector<CatalogObject>& systemObjects()
{
    using namespace identity;
    static const std::vector<CatalogObject> objects = {
        {tablesContainer, root, "Tables", containerType, engine, systemFlag},
        {databases, root, "Databases", containerType, engine, systemFlag},
        {relationships, root, "Relationships", containerType, engine, systemFlag},
        {databaseObject, databases, "MSysDb", databaseType, admin, systemFlag},
        {systemPage::objects, tablesContainer, "MSysObjects", tableType, engine, systemFlag},
        {systemPage::permissions, tablesContainer, "MSysACEs", tableType, engine, systemFlag},
        {systemPage::queries, tablesContainer, "MSysQueries", tableType, engine, systemFlag},
        {systemPage::relationships, tablesContainer, "MSysRelationships", tableType, engine,
         systemFlag},
    };
    return objects;
}

const std::vector<Permission>& systemPermissions()
{
    using namespace identity;
    static const std::vector<Permission> permissions = {
        {databases, admin, 0x60000, false},
        {relationships, creator, 0xF00FE, true},
        {relationships, admin, 0x60001, false},
        {relationships, users, 0xFFFFF, true},
        {tablesContainer, creator, 0xF00FE, true},
        {tablesContainer, admin, 0xFFEFF, true},
        {tablesContainer, users, 0xFFEFF, true},
        {databaseObject, admin, 0x6000E, false},
        {databaseObject, users, 0xE, false},
        {systemPage::permissions, admin, 0x60000, false},
        {systemPage::objects, admin, 0x60000, false},
        {systemPage::objects, users, 0x14, false},
        {systemPage::queries, admin, 0x60000, false},
        {systemPage::queries, users, 0x14, false},
        {systemPage::relationships, admin, 0xE0000, false},
        {systemPage::relationships, users, 0x14, false},
    };
    return permissions;
}

} // namespace jet
