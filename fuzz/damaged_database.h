#pragma once

#include "backends/jet/jet_engine.h"
#include "backends/jet/schema/blank_database.h"

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// A sound file of two tables with rows of all forms, made once.
inline const std::string& soundDatabase()
{
    static const std::string image = [] {
        const std::string path = "/tmp/orvan_fuzz_" + std::to_string(getpid()) + ".seed.mdb";
        const auto schema = jet::parseSchema("table tblOne\n"
                                             "column Name text 50\n"
                                             "column Count long default 7\n"
                                             "column Note memo no-zero-length\n"
                                             "table tblTwo\n"
                                             "column Level integer\n");
        std::ofstream(path, std::ios::binary) << jet::blankDatabase(schema);
        jet::JetEngine engine([](const std::string& name) { return name; });
        {
            const auto database = engine.openDatabase(path);
            const auto one = database->openRecordset("tblOne");
            for (const std::size_t length : {2u, 40u, 1500u, 5000u}) {
                one->addNew();
                one->field("Name").setText("row \x80");
                one->field("Note").setText(std::string(length, 'x'));
                one->update();
            }
            const auto two = database->openRecordset("tblTwo");
            two->addNew();
            two->update();
        }
        std::ifstream file(path, std::ios::binary);
        std::string bytes(std::istreambuf_iterator<char>(file), {});
        unlink(path.c_str());
        return bytes;
    }();
    return image;
}

/// The file that an input stands for. After a zero byte: the bytes themselves. Else: the sound file
/// with single bytes changed, four bytes of input each: the page, the place in it, the value.
inline std::string damagedDatabase(std::string_view input)
{
    if (input.empty()) return soundDatabase();
    if (input[0] == 0) return std::string(input.substr(1));
    std::string image = soundDatabase();
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(input[at]); };
    for (std::size_t at = 1; at + 4 <= input.size(); at += 4) {
        const std::size_t place = byte(at) * 4096u + (byte(at + 1) << 8 | byte(at + 2)) % 4096u;
        image[place % image.size()] = input[at + 3];
    }
    return image;
}
