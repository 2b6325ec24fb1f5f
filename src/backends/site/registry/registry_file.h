#pragma once

#include "backends/site/registry/registry_tree.h"

#include <string>
#include <string_view>

/// Reads a registry file, "Windows Registry Editor Version 5.00", in UTF-8 or in UTF-16 with a byte
/// order mark. A line `[-KEY]` or `"name"=-` removes what the lines above it made.
/// Raises 321 with the number of the first damaged line, as in "registry.reg line 12: ...".
RegistryTree parseRegistryFile(std::string_view bytes);

/// The text of a registry file, in UTF-8. What was not changed since it was read stands as it was.
std::string registryFileText(const RegistryTree& tree);
