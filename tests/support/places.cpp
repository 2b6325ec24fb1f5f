#include "support/places.h"

namespace built {

const char* const folder = ORVAN_BUILD_FOLDER;
const char* const data = ORVAN_BUILD_FOLDER "/data";
const char* const orvandiag = ORVAN_ORVANDIAG;
const char* const console = ORVAN_CONSOLE;
const char* const viewer = ORVAN_VIEWER;
const char* const consoleToEnd = ORVAN_CONSOLE_TO_END;
const char* const cabmaker = ORVAN_CABMAKER;
const char* const failingCalls = ORVAN_FAILING_CALLS;
const char* const cmake = ORVAN_CMAKE;

} // namespace built

namespace checkout {

const char* const folder = ORVAN_SOURCE_FOLDER;
const char* const data = ORVAN_SOURCE_FOLDER "/data";
const char* const packaging = ORVAN_SOURCE_FOLDER "/packaging";
const char* const readers = ORVAN_SOURCE_FOLDER "/tests/readers";
const char* const traceSchema = ORVAN_SOURCE_FOLDER "/data/trace_database.schema";
const char* const translations = ORVAN_SOURCE_FOLDER "/src/hosts/desktop/translations";

} // namespace checkout
