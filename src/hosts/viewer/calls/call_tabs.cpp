#include "hosts/viewer/calls/call_tabs.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/viewer/calls/call_list_pane.h"
#include "hosts/viewer/calls/call_pane.h"
#include "hosts/viewer/calls/lane_view.h"

#include <QToolButton>
#include <QTreeView>

namespace viewer {

CallTabs::CallTabs(Calls& calls, QWidget* parent)
    : QTabWidget(parent), list_(new CallListPane(calls, this)), call_(new CallPane(calls, this)),
      close_(new QToolButton(this))
{
    setDocumentMode(true);
    addTab(list_, QString());
    addTab(call_, QString());
    close_->setIcon(toolIcon(QStringLiteral("close")));
    close_->setAutoRaise(true);
    close_->setFocusPolicy(Qt::TabFocus);
    setCornerWidget(close_);
    connect(close_, &QToolButton::clicked, this, &CallTabs::closed);
    connect(list_, &CallListPane::callAsked, this,
            [this](const std::string& id, timeline::Moment first) {
                call_->show(id, first, std::nullopt);
                openCall();
            });
    connect(call_, &CallPane::rowAsked, this, &CallTabs::rowAsked);
    connect(list_, &CallListPane::left, this, &CallTabs::left);
    connect(call_, &CallPane::left, this, &CallTabs::left);
    showInLanguage(this, [this] { showTexts(); });
}

void CallTabs::showTexts()
{
    setTabText(indexOf(list_), tr("Calls"));
    setTabText(indexOf(call_), tr("This Call"));
    setAccessibleName(tr("Calls"));
    close_->setToolTip(tr("Close the calls"));
    close_->setAccessibleName(close_->toolTip());
}

void CallTabs::openList()
{
    show();
    setCurrentWidget(list_);
    list_->list().setFocus(Qt::ShortcutFocusReason);
}

void CallTabs::openCall()
{
    show();
    setCurrentWidget(call_);
    call_->lanes().setFocus(Qt::ShortcutFocusReason);
}

bool CallTabs::showsList() const
{
    return !isHidden() && currentWidget() == list_;
}

bool CallTabs::showsCall() const
{
    return !isHidden() && currentWidget() == call_;
}

} // namespace viewer
