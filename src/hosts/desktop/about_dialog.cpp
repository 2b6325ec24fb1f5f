#include "hosts/desktop/about_dialog.h"

#include "hosts/desktop/icons.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

AboutDialog::AboutDialog(const SnapInIdentity& identity, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("About"));
    auto* symbol = new QLabel(this);
    symbol->setPixmap(toolIcon(QStringLiteral("console")).pixmap(64, 64));
    const auto label = [this](const std::string& text) {
        auto* made = new QLabel(QString::fromStdString(text), this);
        made->setTextFormat(Qt::PlainText);
        made->setWordWrap(true);
        made->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        return made;
    };
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(20, 20, 20, 16);
    grid->setHorizontalSpacing(20);
    grid->addWidget(symbol, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(label(identity.description), 0, 1);
    grid->addWidget(label("Version" + identity.version), 1, 1);
    grid->addWidget(label(identity.provider), 2, 1);
    grid->addWidget(buttons, 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    resize(460, sizeHint().height());
}
