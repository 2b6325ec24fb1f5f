#pragma once

#include <QDialog>

class QMainWindow;

namespace desktop {

/// Every command with its key, in the order of the menus.
class KeyList final : public QDialog {
    Q_OBJECT

public:
    explicit KeyList(QMainWindow& window, QWidget* parent = nullptr);
};

} // namespace desktop
