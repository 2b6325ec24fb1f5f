#pragma once

#include "platform/xml.h"
#include "text/code_page.h"

class FileSystem;

/// XML documents read through a file system, with libxml2.
///
/// A file is decoded as `xmlText` tells. One that is not well-formed is refused, and so is one
/// nested deeper than 256 levels or with a reference to an entity other than XML's own: nothing is
/// fetched, no entity is expanded. Namespaces mean nothing: a name is what the file says, prefix
/// and all.
class LibxmlDocuments final : public XmlService {
public:
    /// `codePage` is that of the server.
    explicit LibxmlDocuments(const FileSystem& files, const CodePage& codePage = windows1252())
        : files_(&files), codePage_(codePage)
    {}

    /// Documents of texts alone: there are no files to load.
    LibxmlDocuments() : codePage_(windows1252()) {}

    std::unique_ptr<XmlDocument> newDocument() override;
    std::string textOf(std::string_view bytes) const override;

private:
    const FileSystem* files_ = nullptr;
    CodePage codePage_;
};
