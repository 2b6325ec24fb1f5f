#include "hosts/cli/terminal/message.h"

#include "text/visible_text.h"

#include <cstdio>

namespace cli {

void printMessage(std::string_view text)
{
    std::fprintf(stderr, "orvandiag: %s\n", visibleText(text).c_str());
}

} // namespace cli
