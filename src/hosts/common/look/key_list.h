#pragma once

#include <QDialog>

#include <vector>

class QMainWindow;

/// Every command of a window's menus with its key, in their order, and the keys of its lists and
/// panes behind them.
class KeyList final : public QDialog {
    Q_OBJECT

public:
    /// A key that stands in no menu; all in the interface language.
    struct Key {
        QString what;
        QString key;
        QString does;
    };

    /// Keys that hold in some part of the window.
    struct Group {
        QString title;
        std::vector<Key> keys;
    };

    explicit KeyList(const QMainWindow& window, const std::vector<Group>& groups,
                     QWidget* parent = nullptr);
};
