#include "cabmaker/reports.h"

namespace cabmaker {

namespace {

constexpr const char* lineEnd = "\r\n";

std::string twoDigits(int number)
{
    return std::string(number < 10 ? "0" : "") + std::to_string(number);
}

std::string dateText(const CabinetTime& moment)
{
    return std::to_string(1980 + (moment.date >> 9)) + "-" + twoDigits(moment.date >> 5 & 15) +
           "-" + twoDigits(moment.date & 31);
}

std::string timeText(const CabinetTime& moment)
{
    return twoDigits(moment.time >> 11) + ":" + twoDigits(moment.time >> 5 & 63) + ":" +
           twoDigits((moment.time & 31) * 2);
}

std::string percent(std::uint64_t part, std::uint64_t whole)
{
    if (whole == 0) return "-";
    const std::uint64_t tenths = part * 1000 / whole;
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " %";
}

void reportLine(std::string& text, const char* title, const std::string& value)
{
    std::string line(title);
    line.resize(16, ' ');
    text += line + value + lineEnd;
}

} // namespace

std::string setupInf(const ReportSubject& subject)
{
    std::string text = std::string("[disks]") + lineEnd + "; number,folder" + lineEnd;
    text += "1,\"" + subject.diskFolder + "\"" + lineEnd + lineEnd;
    text += std::string("[cabinets]") + lineEnd + "; number,disk,file" + lineEnd;
    text += "1,1,\"" + subject.cabinetName + "\"" + lineEnd + lineEnd;
    text += std::string("[files]") + lineEnd + "; cabinet,file,bytes,date,time" + lineEnd;
    for (const MemberFacts& member : subject.cabinet.members)
        text += "1,\"" + member.name + "\"," + std::to_string(member.bytes) + "," +
                dateText(member.modified) + "," + timeText(member.modified) + lineEnd;
    return text;
}

std::string setupRpt(const ReportSubject& subject)
{
    std::uint64_t plainBytes = 0;
    std::uint64_t blocks = 0;
    for (const CabinetLayout::Folder& folder : subject.cabinet.folders) {
        plainBytes += folder.bytes;
        blocks += folder.blocks();
    }
    std::string text;
    reportLine(text, "Cabinet", subject.cabinetName);
    reportLine(text, "Compression", subject.compression == Compression::mszip ? "MSZIP" : "none");
    reportLine(text, "Files", std::to_string(subject.cabinet.members.size()));
    reportLine(text, "Folders", std::to_string(subject.cabinet.folders.size()));
    reportLine(text, "Blocks", std::to_string(blocks));
    reportLine(text, "Bytes before", std::to_string(plainBytes));
    reportLine(text, "Bytes after", std::to_string(subject.cabinet.bytes));
    reportLine(text, "After/before", percent(subject.cabinet.bytes, plainBytes));
    return text;
}

} // namespace cabmaker
