#include "support/fakes/fake_languages.h"

#include "support/fakes/files/fake_paths.h"

#include <utility>

FakeLanguages& FakeLanguages::with(const std::string& path, std::map<int, std::string> texts)
{
    libraries_[fakePaths::folded(path)] = std::move(texts);
    return *this;
}

std::string FakeLanguages::languageName(std::int32_t id) const
{
    const auto name = names.find(id);
    return name == names.end() ? std::string() : name->second;
}

std::int32_t FakeLanguages::loadLibrary(const std::string& path)
{
    loads_.push_back(path);
    const std::string key = fakePaths::folded(path);
    if (libraries_.count(key) == 0) return 0;
    open_[++lastHandle_] = key;
    return lastHandle_;
}

void FakeLanguages::freeLibrary(std::int32_t handle)
{
    freed_.push_back(handle);
    open_.erase(handle);
}

std::optional<std::string> FakeLanguages::text(std::int32_t handle, int id) const
{
    const auto library = open_.find(handle);
    if (library == open_.end()) return std::nullopt;
    const auto& texts = libraries_.at(library->second);
    const auto text = texts.find(id);
    if (text == texts.end()) return std::nullopt;
    return text->second;
}
