#pragma once

namespace jet {

/// Fills the first page of a new file. It is never written again.
void writeHeaderPage(char* page);

/// Whether a page is the first of a Jet 4 file whose other pages are not encrypted.
bool isHeaderPage(const char* page);

} // namespace jet
