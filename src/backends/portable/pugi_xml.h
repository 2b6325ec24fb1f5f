#pragma once

#include "platform/xml.h"

class FileSystem;

/// XML documents read through a file system.
///
/// Document type declarations are passed over and their entities never expanded. A document nested
/// deeper than 512 levels counts as malformed.
class PugiXml final : public XmlService {
public:
    explicit PugiXml(const FileSystem& files) : files_(files) {}

    std::unique_ptr<XmlDocument> newDocument() override;

private:
    const FileSystem& files_;
};
