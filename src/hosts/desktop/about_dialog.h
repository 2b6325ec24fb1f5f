#pragma once

#include "platform/console.h"

#include <QDialog>

/// What the tool is: its version and who made it.
class AboutDialog final : public QDialog {
    Q_OBJECT

public:
    explicit AboutDialog(const SnapInIdentity& identity, QWidget* parent = nullptr);
};
