#include "cabmaker/directive_file.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <utility>

#include "cabmaker/cabinet_layout.h"
#include "cabmaker/directive_line.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "runtime/windows_path.h"
#include "text/code_page.h"
#include "text/utf8.h"

namespace cabmaker {

namespace {

[[noreturn]] void refuse(const std::string& because)
{
    throw RunTimeError(runTimeErrors::invalidCall, because);
}

bool onOrOff(const std::string& value)
{
    const std::string folded = lowerCase(value);
    if (folded == "on" || folded == "1" || folded == "yes" || folded == "true") return true;
    if (folded == "off" || folded == "0" || folded == "no" || folded == "false") return false;
    refuse("\"" + value + "\" is neither on nor off");
}

std::uint64_t bytesOf(const std::string& value)
{
    std::uint64_t bytes = 0;
    const char* const end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, bytes);
    if (value.empty() || stop != end || error != std::errc())
        refuse("\"" + value + "\" is no size in bytes");
    return bytes;
}

std::uint64_t diskBytes(const std::string& value)
{
    static constexpr std::pair<std::string_view, std::uint64_t> disks[] = {
        {"cdrom", 681'984'000}, {"1.44m", 1'457'664}, {"1.2m", 1'213'952},
        {"720k", 730'112},      {"360k", 362'496},
    };
    const std::string folded = lowerCase(value);
    for (const auto& [name, bytes] : disks)
        if (folded == name) return bytes;
    return bytesOf(value);
}

const std::string& requireTemplate(const std::string& name)
{
    if (std::count(name.begin(), name.end(), '*') > 1) refuse("a template has one * at most");
    return name;
}

std::string numbered(std::string name, std::size_t number)
{
    const std::size_t star = name.find('*');
    return star == std::string::npos ? name : name.replace(star, 1, std::to_string(number));
}

std::string fileOrNone(const std::string& name)
{
    return lowerCase(name) == "nul" ? std::string() : name;
}

std::string inFolder(const std::string& folder, const std::string& name)
{
    if (folder.empty() || folder.back() == '\\' || folder.back() == '/') return folder + name;
    return folder + "\\" + name;
}

// A name that a reader may put behind the folder it extracts to.
std::string memberName(std::string name)
{
    std::replace(name.begin(), name.end(), '/', '\\');
    if (name.empty() || name.back() == '\\') refuse("the member has no name");
    if (name.size() > formatLimits::nameBytes)
        refuse("the member's name is longer than " + std::to_string(formatLimits::nameBytes) +
               " bytes");
    const std::string parts = "\\" + name + "\\";
    for (const char* bad : {"\\\\", "\\.\\", "\\..\\"})
        if (parts.find(bad) != std::string::npos) refuse("a member's name can't be " + name);
    if (name.find(':') != std::string::npos) refuse("a member's name can't be " + name);
    return name;
}

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

class Parser {
public:
    void line(std::string_view bytes, unsigned number);
    Directives result() &&;

private:
    struct Variable {
        std::string_view name; // folded
        void (Parser::*set)(const std::string& value);
        bool ofTheWholeCabinet;
        bool mayBeEmpty;
    };
    static const Variable variables[];

    void directive(DirectiveLine& line);
    void option(DirectiveLine& line);
    void setVariable(DirectiveLine& line);
    void member(DirectiveLine& line, unsigned number);

    /// UTF-8 of bytes of the file.
    std::string decoded(const std::string& bytes) const
    {
        if (utf8_) return bytes;
        std::string text;
        codePage_.appendUtf8(text, bytes);
        return text;
    }

    void setCabinet(const std::string& value);
    void setCabinetName(const std::string& value);
    void setCompress(const std::string& value);
    void setCompressionType(const std::string& value);
    void setDestinationFolder(const std::string& value) { destinationFolder_ = value; }
    void setDiskFolder(const std::string& value)
    {
        directives_.diskFolder = requireTemplate(value);
    }
    void setInfFile(const std::string& value) { directives_.infFile = fileOrNone(value); }
    void setMaxCabinetSize(const std::string& value) { largestCabinet_ = bytesOf(value); }
    void setMaxDiskSize(const std::string& value) { largestDisk_ = diskBytes(value); }
    void setRptFile(const std::string& value) { directives_.rptFile = fileOrNone(value); }
    void setSourceFolder(const std::string& value) { sourceFolder_ = value; }
    void setUniqueFiles(const std::string& value) { uniqueFiles_ = onOrOff(value); }

    Directives directives_;
    std::string sourceFolder_;
    std::string destinationFolder_;
    std::uint64_t largestCabinet_ = 0;
    std::uint64_t largestDisk_ = 0;
    bool uniqueFiles_ = true;
    const CodePage codePage_ = windows1252();
    bool utf8_ = false;
    std::set<std::string> names_;
};

const Parser::Variable Parser::variables[] = {
    {"cabinet", &Parser::setCabinet, true, false},
    {"cabinetname1", &Parser::setCabinetName, true, false},
    {"cabinetnametemplate", &Parser::setCabinetName, true, false},
    {"compress", &Parser::setCompress, true, false},
    {"compressiontype", &Parser::setCompressionType, true, false},
    {"destinationdir", &Parser::setDestinationFolder, false, true},
    {"diskdirectory1", &Parser::setDiskFolder, true, true},
    {"diskdirectorytemplate", &Parser::setDiskFolder, true, true},
    {"inffilename", &Parser::setInfFile, true, false},
    {"maxcabinetsize", &Parser::setMaxCabinetSize, true, false},
    {"maxdisksize", &Parser::setMaxDiskSize, true, false},
    {"rptfilename", &Parser::setRptFile, true, false},
    {"sourcedir", &Parser::setSourceFolder, false, true},
    {"uniquefiles", &Parser::setUniqueFiles, false, false},
};

void Parser::line(std::string_view bytes, unsigned number)
{
    if (number == 1 && bytes.starts_with(utf8Mark)) {
        bytes.remove_prefix(utf8Mark.size());
        utf8_ = true;
    }
    if (utf8_ && !isUtf8(bytes)) refuse("the file begins as UTF-8, which this line is not");
    for (const char c : bytes)
        if (static_cast<unsigned char>(c) < 0x20 && c != '\t') refuse("a control character");

    DirectiveLine line(bytes);
    if (line.atEnd()) return;
    if (line.take('.'))
        directive(line);
    else
        member(line, number);
}

Directives Parser::result() &&
{
    const bool diskIsNarrower =
        largestDisk_ != 0 && (largestCabinet_ == 0 || largestDisk_ < largestCabinet_);
    directives_.largestCabinet = diskIsNarrower ? largestDisk_ : largestCabinet_;
    return std::move(directives_);
}

void Parser::directive(DirectiveLine& line)
{
    const std::string name = line.atEnd() ? std::string() : line.word();
    const std::string folded = lowerCase(name);
    if (folded == "option")
        option(line);
    else if (folded == "set")
        setVariable(line);
    else
        refuse("the directive ." + decoded(name) + " is not known");
}

void Parser::option(DirectiveLine& line)
{
    const std::string name = line.atEnd() ? std::string() : line.word();
    if (lowerCase(name) != "explicit") refuse("the option \"" + decoded(name) + "\" is not known");
    if (!line.atEnd()) refuse("something follows the option");
}

void Parser::setVariable(DirectiveLine& line)
{
    const std::string name = line.atEnd() ? std::string() : line.word("=");
    const std::string folded = lowerCase(name);
    const auto variable = std::find_if(std::begin(variables), std::end(variables),
                                       [&](const Variable& v) { return v.name == folded; });
    if (variable == std::end(variables))
        refuse("the variable \"" + decoded(name) + "\" is not known");
    if (!line.take('=')) refuse("= is missing");
    const std::string value = decoded(line.value());
    if (value.empty() && !variable->mayBeEmpty) refuse("the value is missing");
    if (variable->ofTheWholeCabinet && !directives_.members.empty())
        refuse(name + " is of the whole cabinet and must stand before the first file");
    (this->*variable->set)(value);
}

void Parser::member(DirectiveLine& line, unsigned number)
{
    if (directives_.members.size() == formatLimits::members)
        refuse("a cabinet can't hold more than " + std::to_string(formatLimits::members) +
               " files");
    const std::string source = decoded(line.word());
    if (baseName(source).empty()) refuse("the file has no name");
    std::string name(baseName(source));
    if (!line.atEnd()) {
        if (line.next() == '/') refuse("parameters of a file are not known");
        name = decoded(line.word());
    }
    if (!line.atEnd()) refuse("a name with blanks must stand in quotes");

    name = memberName(inFolder(destinationFolder_, name));
    if (!names_.insert(foldCase(name)).second && uniqueFiles_)
        refuse("the cabinet already has a file " + name);
    directives_.members.push_back({inFolder(sourceFolder_, source), std::move(name), number});
}

void Parser::setCabinet(const std::string& value)
{
    if (!onOrOff(value)) refuse("files outside of cabinets are not made");
}

void Parser::setCabinetName(const std::string& value)
{
    directives_.cabinetName = requireTemplate(value);
    const std::string_view name = baseName(directives_.cabinetName);
    if (name.empty() || name == "." || name == "..") refuse("the cabinet has no name");
}

void Parser::setCompress(const std::string& value)
{
    directives_.compression = onOrOff(value) ? Compression::mszip : Compression::none;
}

void Parser::setCompressionType(const std::string& value)
{
    if (lowerCase(value) != "mszip") refuse("MSZIP is the one compression that is made");
}

} // namespace

std::string cabinetNameOf(const Directives& directives, std::size_t number)
{
    const std::string& name = directives.cabinetName;
    if (number == 1 || name.find('*') != std::string::npos) return numbered(name, number);
    const std::size_t dot = name.size() - baseName(name).size() + baseName(name).rfind('.');
    const std::size_t end = baseName(name).find('.') == std::string::npos ? name.size() : dot;
    return name.substr(0, end) + "_" + std::to_string(number) + name.substr(end);
}

std::string diskFolderOf(const Directives& directives, std::size_t number)
{
    return numbered(directives.diskFolder, number);
}

Directives parseDirectives(std::string_view bytes, const std::string& fileName)
{
    Parser parser;
    for (unsigned number = 1; !bytes.empty(); ++number) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        try {
            parser.line(line, number);
        } catch (const RunTimeError& error) {
            throw RunTimeError(error.number(), fileName + ":" + std::to_string(number) + ": " +
                                                   error.description());
        }
    }
    return std::move(parser).result();
}

} // namespace cabmaker
