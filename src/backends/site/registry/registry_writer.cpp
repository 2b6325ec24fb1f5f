#include "backends/site/registry/registry_file.h"

#include "text/utf8.h"

#include <cstdint>

namespace {

constexpr std::size_t lineWidth = 78;
constexpr char digits[] = "0123456789abcdef";

class Writer {
public:
    explicit Writer(const RegistryTree& tree) : tree_(tree) {}

    std::string write()
    {
        line("Windows Registry Editor Version 5.00");
        for (const auto& section : tree_.sections()) writeKey(section, *tree_.find(section));
        line("");
        for (const auto& comment : tree_.closingComments) line(comment);
        return std::move(text_);
    }

private:
    void line(std::string_view content)
    {
        text_ += content;
        text_ += tree_.lineEnd;
    }

    void writeKey(const std::string& path, const RegistryKey& key)
    {
        line("");
        for (const auto& comment : key.comments) line(comment);
        line("[" + path + "]");
        for (const auto& entry : key.values()) {
            for (const auto& comment : entry.comments) line(comment);
            writeValue(entry);
        }
    }

    void writeValue(const RegistryEntry& entry)
    {
        std::string start = entry.name.empty() ? "@" : quoted(entry.name);
        start += '=';
        if (!entry.source.empty()) {
            line(start + entry.source);
            return;
        }
        const auto& [type, bytes] = entry.value;
        std::string text(bytes.begin(), bytes.end());
        if (type == registryType::text && !text.empty()) text.pop_back();
        if (type == registryType::text && text.find('\0') == std::string::npos) {
            line(start + quoted(text));
        } else if (type == registryType::number && bytes.size() == 4) {
            line(start + "dword:" + number(bytes));
        } else if (type == registryType::bytes) {
            writeBytes(start + "hex:", text);
        } else {
            text.assign(bytes.begin(), bytes.end());
            writeBytes(start + "hex(" + hexOf(static_cast<std::uint32_t>(type)) + "):",
                       isTextType(type) ? utf16LittleEndian(text) : text);
        }
    }

    static std::string quoted(std::string_view text)
    {
        std::string result = "\"";
        for (const char c : text) {
            if (c == '\\' || c == '"') result += '\\';
            result += c;
        }
        return result + '"';
    }

    static std::string number(const std::vector<std::uint8_t>& bytes)
    {
        std::string result;
        for (std::size_t index = bytes.size(); index-- > 0;) appendByte(result, bytes[index]);
        return result;
    }

    static std::string hexOf(std::uint32_t value)
    {
        std::string result;
        do {
            result.insert(result.begin(), digits[value & 0xF]);
            value >>= 4;
        } while (value != 0);
        return result;
    }

    static void appendByte(std::string& text, unsigned byte)
    {
        text += digits[byte >> 4];
        text += digits[byte & 0xF];
    }

    void writeBytes(std::string content, std::string_view bytes)
    {
        for (std::size_t index = 0; index < bytes.size(); ++index) {
            const bool isLast = index + 1 == bytes.size();
            appendByte(content, static_cast<unsigned char>(bytes[index]));
            if (!isLast) content += ',';
            if (isLast || content.size() + 3 <= lineWidth) continue;
            line(content + "\\");
            content = "  ";
        }
        line(content);
    }

    const RegistryTree& tree_;
    std::string text_;
};

} // namespace

std::string registryFileText(const RegistryTree& tree)
{
    return Writer(tree).write();
}
