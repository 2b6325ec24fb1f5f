#include "hosts/common/look/plain_tool_tip.h"

#include <QTextDocument>

QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}
