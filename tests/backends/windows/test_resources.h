#pragma once

#include <string>

/// Makes a resource library of one text in place of what stands at `path`, out of `model`, which is
/// one of any texts.
void makeResourceLibrary(const std::wstring& model, const std::wstring& path, int id,
                         const std::wstring& text);
