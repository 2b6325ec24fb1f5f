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
    std::string disks = std::string("[disks]") + lineEnd + "; number,folder" + lineEnd;
    std::string cabinets = std::string("[cabinets]") + lineEnd + "; number,disk,file" + lineEnd;
    for (std::size_t i = 0; i < subject.cabinets.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        disks += number + ",\"" + subject.cabinets[i].diskFolder + "\"" + lineEnd;
        cabinets += number + "," + number + ",\"" + subject.cabinets[i].name + "\"" + lineEnd;
    }
    std::string text = disks + lineEnd + cabinets + lineEnd;
    text += std::string("[files]") + lineEnd + "; cabinet,file,bytes,date,time" + lineEnd;
    std::size_t cabinet = 1;
    for (std::size_t i = 0; i < subject.packed.members.size(); ++i) {
        const MemberFacts& member = subject.packed.members[i];
        while (cabinet < subject.cabinets.size() && subject.cabinets[cabinet].firstMember <= i)
            ++cabinet;
        text += std::to_string(cabinet) + ",\"" + member.name + "\"," +
                std::to_string(member.bytes) + "," + dateText(member.modified) + "," +
                timeText(member.modified) + lineEnd;
    }
    return text;
}

std::string setupRpt(const ReportSubject& subject)
{
    std::uint64_t plainBytes = 0;
    std::uint64_t blocks = 0;
    for (const CabinetLayout::Folder& folder : subject.packed.folders) {
        plainBytes += folder.bytes;
        blocks += folder.blocks();
    }
    std::string text;
    for (const auto& cabinet : subject.cabinets) reportLine(text, "Cabinet", cabinet.name);
    reportLine(text, "Compression", subject.compression == Compression::mszip ? "MSZIP" : "none");
    reportLine(text, "Files", std::to_string(subject.packed.members.size()));
    reportLine(text, "Folders", std::to_string(subject.packed.folders.size()));
    reportLine(text, "Blocks", std::to_string(blocks));
    reportLine(text, "Bytes before", std::to_string(plainBytes));
    reportLine(text, "Bytes after", std::to_string(subject.bytes));
    reportLine(text, "After/before", percent(subject.bytes, plainBytes));
    return text;
}

} // namespace cabmaker
