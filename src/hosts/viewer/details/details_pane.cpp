#include "hosts/viewer/details/details_pane.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/table/row_column.h"
#include "hosts/viewer/table/time_text.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace viewer {

namespace {

constexpr int fieldsWidth = 320;
constexpr int traceWidth = 600;

} // namespace

DetailsPane::DetailsPane(Document& document, QWidget* parent) : QWidget(parent), document_(document)
{
    auto* splitter = new QSplitter(this);
    fields_ = new QTreeWidget(splitter);
    fields_->setColumnCount(2);
    fields_->setHeaderHidden(true);
    fields_->setRootIsDecorated(false);
    fields_->setUniformRowHeights(true);
    fields_->setFrameShape(QFrame::NoFrame);
    fields_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto* side = new QWidget(splitter);
    trace_ = new QPlainTextEdit(side);
    trace_->setReadOnly(true);
    trace_->setFrameShape(QFrame::NoFrame);
    trace_->setFont(theme::traceFont());
    trace_->setTabChangesFocus(true);
    splitter->addWidget(fields_);
    showAll_ = new QPushButton(side);
    showAll_->hide();
    auto* traceAndButton = new QVBoxLayout(side);
    traceAndButton->setContentsMargins(0, 0, 0, 0);
    traceAndButton->setSpacing(0);
    traceAndButton->addWidget(trace_);
    traceAndButton->addWidget(showAll_, 0, Qt::AlignLeft);
    splitter->addWidget(side);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({fieldsWidth, traceWidth});
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(splitter);
    connect(showAll_, &QPushButton::clicked, this, [this] {
        if (!place_ || *place_ >= document_.rowCount()) return;
        trace_->setFocus(); // the button goes
        showAll_->hide();
        // A line of a million characters takes minutes to be broken at a width.
        trace_->setLineWrapMode(QPlainTextEdit::NoWrap);
        trace_->setPlainText(document_.wholeTrace(*place_));
    });
    showInLanguage(this, [this] { showTexts(); });
}

void DetailsPane::showTexts()
{
    fields_->setAccessibleName(tr("Fields of the row"));
    trace_->setAccessibleName(tr("Trace of the row"));
    trace_->setPlaceholderText(tr("Select a row to read all of it here."));
    show(place_);
}

void DetailsPane::show(std::optional<std::size_t> place)
{
    place_ = place;
    fields_->clear();
    trace_->clear();
    showAll_->hide();
    if (!place || *place >= document_.rowCount()) return;
    const ShownRow row = document_.row(*place);
    const auto add = [this](RowColumn column, const QString& value) {
        if (!value.isEmpty()) new QTreeWidgetItem(fields_, {RowColumns::title(column), value});
    };
    const QString remark = remark_ ? remark_(row.index) : QString();
    if (!remark.isEmpty()) {
        auto* item = new QTreeWidgetItem(fields_, {tr("Note"), harmless(remark)});
        item->setIcon(0, toolIcon(QStringLiteral("bookmark")));
        item->setToolTip(1, plainToolTip(remark));
    }
    add(RowColumn::time, clockText(row.index.moment));
    add(RowColumn::process, row.process);
    add(RowColumn::source, row.source);
    add(RowColumn::component, row.component);
    if (row.hasForm) {
        add(RowColumn::level, QString::number(row.level));
        add(RowColumn::number, QString::number(row.traceNumber));
    }
    add(RowColumn::thread, row.thread);
    add(RowColumn::port, row.port);
    add(RowColumn::callId, row.callId);
    add(RowColumn::file, row.file);
    add(RowColumn::line, QString::number(row.index.line));
    const QString trace = document_.wholeTrace(*place);
    trace_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    trace_->setPlainText(trace.left(mostAtOnce));
    if (trace.size() <= mostAtOnce) return;
    showAll_->setText(tr("Show all %1 characters of the trace")
                          .arg(QLocale().toString(static_cast<qlonglong>(trace.size()))));
    showAll_->show();
}

QString DetailsPane::value() const
{
    const QTreeWidgetItem* field = fields_->currentItem();
    if (fields_->hasFocus() && field != nullptr) return field->text(1);
    const QString selected = trace_->textCursor().selectedText();
    if (!selected.isEmpty()) return QString(selected).replace(QChar(0x2029), QLatin1Char('\n'));
    const bool cut = !showAll_->isHidden() && place_ && *place_ < document_.rowCount();
    return cut ? document_.wholeTrace(*place_) : trace_->toPlainText();
}

} // namespace viewer
