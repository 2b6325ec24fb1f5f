#include "shell/snapin_identity.h"

#include "core/user_texts.h"
#include "core/utility.h"
#include "runtime/text.h"

SnapInIdentity snapinIdentity(Languages& languages, const HostModule& module)
{
    const UserTexts texts(languages, module);
    SnapInIdentity identity;
    identity.provider = texts.text(TextId::companyName);
    identity.description = snapinDescription([&](TextId id) { return texts.text(id); });
    identity.version = moduleVersionText(module);
    return identity;
}

std::string snapinDescription(const std::function<std::string(TextId)>& text)
{
    std::string description = text(TextId::snapInFullName);
    description.append(lineBreak).append(text(TextId::copyright));
    description.append(lineBreak).append(text(TextId::trademarks));
    return description;
}
