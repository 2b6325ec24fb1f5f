#include "hosts/cli/reading/row_format.h"
#include "hosts/cli/reading/severity.h"
#include "hosts/cli/terminal/output.h"
#include "runtime/text.h"
#include "text/visible_text.h"

#include <algorithm>
#include <map>

namespace cli {

namespace {

constexpr std::size_t rowsOfRequest = 500;

/// No line is added to a body of so many bytes, for a file may have millions that have no form.
constexpr std::size_t mostBodyBytes = 1U << 20;

/// The numbers that the data model gives to severities.
constexpr int informationNumber = 9;
constexpr int warningNumber = 13;
constexpr int errorNumber = 17;

int severityNumber(const RowCells& row)
{
    const Severity severity = severityOf(row);
    if (severity == Severity::error) return errorNumber;
    return severity == Severity::warning ? warningNumber : informationNumber;
}

/// Whether a call id can be the id of a trace: 32 hexadecimal digits that are not all zero.
bool isTraceId(std::string_view id)
{
    constexpr std::size_t digits = 32;
    return id.size() == digits && id.find_first_not_of('0') != std::string_view::npos &&
           std::all_of(id.begin(), id.end(), [](char digit) {
               return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f') ||
                      (digit >= 'A' && digit <= 'F');
           });
}

class OtlpFormat final : public RowFormat {
public:
    OtlpFormat(std::string host, ToUniversal toUniversal)
        : host_(std::move(host)), toUniversal_(std::move(toUniversal))
    {}

    void row(const RowCells& row, const timeline::Record& record, std::string& text) override
    {
        if (row.goesOn && open_.takesLines && open_.body.size() < mostBodyBytes) {
            open_.body += '\n';
            appendDecoded(open_.body, record.trace, record.codePage);
            return;
        }
        finishRecord(text);
        beginRecord(row, record);
    }

    void end(std::string& text) override
    {
        finishRecord(text);
        if (rows_ > 0) writeRequest(text);
    }

private:
    /// A record whose body the lines that follow may go on.
    struct OpenRecord {
        bool takesLines = false;
        std::string process;
        std::string head; ///< what stands before the body; empty where no record is open
        std::string body;
        std::string rest;
    };

    void beginRecord(const RowCells& row, const timeline::Record& record)
    {
        open_.takesLines = record.hasForm;
        open_.process = row.process;
        open_.body.clear();
        appendDecoded(open_.body, record.trace, record.codePage);
        open_.head.clear();
        appendHead(open_.head, row, record);
        open_.rest.clear();
        appendRest(open_.rest, row, record);
    }

    void finishRecord(std::string& text)
    {
        if (open_.head.empty()) return;
        std::string& records = records_[open_.process];
        if (!records.empty()) records += ',';
        records += open_.head;
        appendJsonText(records, open_.body);
        records += open_.rest;
        open_.head.clear();
        open_.takesLines = false;
        if (++rows_ == rowsOfRequest) writeRequest(text);
    }

    void appendHead(std::string& json, const RowCells& row, const timeline::Record& record)
    {
        json += '{';
        if (row.moment != timeline::noMoment) {
            // A moment before 1970 is none that the model has a number for.
            const timeline::Moment universal =
                std::max<timeline::Moment>(toUniversal_(row.moment), 0);
            json.append("\"timeUnixNano\":\"").append(std::to_string(universal));
            json.append(universal == 0 ? "\"," : "000000\",");
        }
        if (record.hasForm) {
            json.append("\"severityNumber\":").append(std::to_string(severityNumber(row)));
            json.append(",\"severityText\":\"").append(std::to_string(row.level)).append("\",");
        }
        json += "\"body\":{\"stringValue\":";
    }

    void appendRest(std::string& json, const RowCells& row, const timeline::Record& record)
    {
        json += "},\"attributes\":[";
        appendAttributes(json, row, record);
        json += ']';
        if (isTraceId(row.callId))
            json.append(",\"traceId\":\"").append(lowerCase(row.callId)).append(1, '"');
        json += '}';
    }

    void appendAttributes(std::string& json, const RowCells& row, const timeline::Record& record)
    {
        firstAttribute_ = true;
        if (!row.file.empty()) addAttribute(json, "log.file.name", row.file, nullptr);
        if (row.line > 0) addNumber(json, "orvan.line", row.line);
        if (!record.hasForm) return;
        addAttribute(json, "orvan.source", record.source, record.codePage);
        addNumber(json, "orvan.trace_number", record.traceNumber);
        addAttribute(json, "orvan.component", record.component, record.codePage);
        addNumber(json, "orvan.level", record.level);
        const std::pair<const char*, std::string_view> extended[] = {
            {"orvan.thread", record.thread},
            {"orvan.port", record.port},
            {"orvan.call_id", record.callId}};
        for (const auto& [key, value] : extended)
            if (!value.empty()) addAttribute(json, key, value, record.codePage);
    }

    void addKey(std::string& json, const char* key)
    {
        if (!firstAttribute_) json += ',';
        firstAttribute_ = false;
        json.append("{\"key\":\"").append(key).append("\",\"value\":{");
    }

    void addAttribute(std::string& json, const char* key, std::string_view value,
                      const CodePage* codePage)
    {
        addKey(json, key);
        json += "\"stringValue\":";
        addText(json, value, codePage);
        json += "}}";
    }

    void addNumber(std::string& json, const char* key, std::int64_t value)
    {
        addKey(json, key);
        json.append("\"intValue\":\"").append(std::to_string(value)).append("\"}}");
    }

    void addText(std::string& json, std::string_view text, const CodePage* codePage)
    {
        decoded_.clear();
        appendDecoded(decoded_, text, codePage);
        appendJsonText(json, decoded_);
    }

    void writeRequest(std::string& text)
    {
        request_ = "{\"resourceLogs\":[";
        bool first = true;
        for (auto& [process, records] : records_) {
            if (records.empty()) continue;
            if (!first) request_ += ',';
            first = false;
            appendResource(process);
            request_.append("\"scopeLogs\":[{\"scope\":{\"name\":\"orvandiag\"},\"logRecords\":[");
            request_.append(records).append("]}]}");
            records.clear();
        }
        request_ += "]}";
        appendVisible(text, request_);
        text += '\n';
        rows_ = 0;
    }

    void appendResource(const std::string& process)
    {
        request_ += "{\"resource\":{\"attributes\":[";
        firstAttribute_ = true;
        addAttribute(request_, "service.name", process.empty() ? "unknown_service" : process,
                     nullptr);
        if (!host_.empty()) addAttribute(request_, "host.name", host_, nullptr);
        request_ += "]},";
    }

    std::string host_;
    ToUniversal toUniversal_;
    std::map<std::string, std::string> records_; ///< of each process, of this request
    std::size_t rows_ = 0;
    OpenRecord open_;
    std::string request_;
    std::string decoded_;
    bool firstAttribute_ = true;
};

} // namespace

std::unique_ptr<RowFormat> makeOtlpFormat(std::string host, ToUniversal toUniversal)
{
    return std::make_unique<OtlpFormat>(std::move(host), std::move(toUniversal));
}

} // namespace cli
