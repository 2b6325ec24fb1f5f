#include "console/scope_tree.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <utility>

ScopeItem::ScopeItem(std::string_view typeName, std::string_view key, ScopeItem* parent,
                     ScopeTreeListener& listener)
    : typeName_(typeName), key_(key), name_(typeName), displayName_(typeName), parent_(parent),
      listener_(&listener)
{}

void ScopeItem::name(std::string text)
{
    name_ = std::move(text);
    changed();
}

void ScopeItem::displayName(std::string text)
{
    displayName_ = std::move(text);
    changed();
}

void ScopeItem::kind(std::string text)
{
    kind_ = std::move(text);
    changed();
}

void ScopeItem::image(std::string name)
{
    image_ = std::move(name);
    changed();
}

void ScopeItem::changed()
{
    if (listener_) listener_->itemChanged(*this);
}

ScopeItem& ScopeTree::item(int position) const
{
    if (position < 1 || position > count()) {
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    }
    return *items_[static_cast<std::size_t>(position) - 1];
}

ScopeItem& ScopeTree::item(std::string_view key) const
{
    ScopeItem* found = find(key);
    if (!found) throw RunTimeError(runTimeErrors::keyNotFound);
    return *found;
}

ScopeItem* ScopeTree::find(std::string_view key) const
{
    const auto found = byKey_.find(key);
    return found == byKey_.end() ? nullptr : found->second;
}

std::vector<std::string> ScopeTree::keysBeginningWith(std::string_view text) const
{
    const std::string prefix = lowerCase(text);
    std::vector<const ScopeItem*> found;
    for (auto at = byLowerKey_.lower_bound(prefix);
         at != byLowerKey_.end() && beginsWith(at->first, prefix); ++at)
        found.push_back(at->second);
    std::sort(found.begin(), found.end(), [](const ScopeItem* left, const ScopeItem* right) {
        return left->number_ > right->number_;
    });
    std::vector<std::string> keys;
    for (const ScopeItem* item : found) keys.push_back(item->key());
    return keys;
}

ScopeItem& ScopeTree::addRoot(std::string_view typeName, std::string_view key)
{
    return add(typeName, key, nullptr);
}

ScopeItem& ScopeTree::addChild(std::string_view typeName, std::string_view key, ScopeItem& parent)
{
    if (!parent.inTree()) throw RunTimeError(runTimeErrors::invalidCall);
    return add(typeName, key, &parent);
}

ScopeItem& ScopeTree::add(std::string_view typeName, std::string_view key, ScopeItem* parent)
{
    if (find(key)) throw RunTimeError(runTimeErrors::scopeItemExists);
    std::shared_ptr<ScopeItem> added(new ScopeItem(typeName, key, parent, listener_));
    added->number_ = added_++;
    items_.push_back(added);
    byLowerKey_.emplace(lowerCase(key), added.get());
    byKey_.emplace(added->key(), added.get());
    if (parent) parent->children_.push_back(added.get());
    listener_.itemAdded(*added);
    return *added;
}

void ScopeTree::remove(std::string_view key)
{
    const std::shared_ptr<ScopeItem> leaving = item(key).shared_from_this();
    listener_.itemLeaving(*leaving);
    if (leaving->inTree()) removeWithChildren(*leaving);
}

void ScopeTree::removeWithChildren(ScopeItem& item)
{
    while (!item.children_.empty()) removeWithChildren(*item.children_.back());

    const auto isItem = [&](const auto& other) { return &*other == &item; };
    // Renewals remove the youngest first, so that the search from the end is short.
    const auto found = std::find_if(items_.rbegin(), items_.rend(), isItem);
    const std::shared_ptr<ScopeItem> removed = *found;
    items_.erase(std::next(found).base());
    byKey_.erase(item.key());
    const auto [first, last] = byLowerKey_.equal_range(lowerCase(item.key()));
    byLowerKey_.erase(
        std::find_if(first, last, [&](const auto& entry) { return entry.second == &item; }));
    if (item.parent_) {
        auto& siblings = item.parent_->children_;
        siblings.erase(std::next(std::find_if(siblings.rbegin(), siblings.rend(), isItem)).base());
    }
    item.parent_ = nullptr;
    item.listener_ = nullptr;
    listener_.itemRemoved(item);
}
