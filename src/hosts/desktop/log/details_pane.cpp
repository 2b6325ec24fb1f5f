#include "hosts/desktop/log/details_pane.h"

#include "console/list_view.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/spoken_label.h"
#include "hosts/common/look/theme.h"
#include "hosts/desktop/log/list_model.h"
#include "hosts/desktop/log/log_columns.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace desktop {

DetailsPane::DetailsPane(QWidget* parent)
    : QWidget(parent), fields_(new SpokenLabel(this)), trace_(new QPlainTextEdit(this))
{
    fields_->setTextFormat(Qt::RichText);
    fields_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    fields_->setWordWrap(true);
    trace_->setReadOnly(true);
    trace_->document()->setDocumentMargin(6);
    trace_->setFont(theme::traceFont());
    trace_->setTabChangesFocus(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 6, 8, 8);
    column->setSpacing(6);
    column->addWidget(fields_);
    column->addWidget(trace_, 1);
    showInLanguage(this, [this] {
        fields_->setAccessibleName(tr("Fields of the line"));
        trace_->setAccessibleName(tr("Trace of the line"));
    });
}

void DetailsPane::show(const ListModel& rows, int row)
{
    const ListView* list = rows.list();
    if (!list || rows.positionOfRow(row) == 0) {
        fields_->setText(tr("Select a line to read all of it here."));
        trace_->clear();
        return;
    }
    const LogColumns columns = LogColumns::of(*list);
    QStringList fields;
    for (const int column :
         {columns.number, columns.timeStamp, columns.source, columns.traceNumber, columns.component,
          columns.level, columns.thread, columns.port, columns.callId}) {
        if (column == 0) continue;
        const QString value = rows.text(row, column);
        if (value.isEmpty()) continue;
        const QString header =
            rows.headerData(column - 1, Qt::Horizontal, Qt::DisplayRole).toString();
        fields << QStringLiteral("<span style='color:%1'>%2</span>&nbsp;%3")
                      .arg(theme::quietText(palette()).name(), header.toHtmlEscaped(),
                           value.toHtmlEscaped());
    }
    fields_->setText(fields.join(QStringLiteral("&nbsp;&nbsp; ")));
    const QString line = rows.note(row);
    trace_->setPlainText(line.isEmpty() ? rows.text(row, columns.trace) : line);
}

void DetailsPane::setTextFont(const QFont& font)
{
    trace_->setFont(font);
}

} // namespace desktop
