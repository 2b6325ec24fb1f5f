#include "hosts/desktop/look/plain_tool_tip.h"

#include <QTextDocument>

namespace desktop {

QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace desktop
