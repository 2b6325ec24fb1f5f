// The least that a program with a window can do: shows an empty one of the console's size, says
// "painted" when it is, and ends.
//
//     empty_window          with nothing in it
//     empty_window tree     with a menu bar and a tree of two nodes, as the console begins

#include "after_painting.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStandardItemModel>
#include <QTreeView>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    QWidget* shown = &window;
    QStandardItemModel nodes;
    window.resize(1180, 760);
    if (argc > 1) {
        for (const char* name : {"&File", "&Action", "&Edit", "&View", "&Help"})
            window.menuBar()->addMenu(QString::fromLatin1(name));
        nodes.appendRow(new QStandardItem(QStringLiteral("Kelma Orvan Diagnostics")));
        nodes.item(0)->appendRow(new QStandardItem(QStringLiteral("Processes")));
        auto* tree = new QTreeView(&window);
        tree->setHeaderHidden(true);
        tree->setModel(&nodes);
        tree->expandAll();
        window.setCentralWidget(tree);
        shown = tree->viewport();
    }
    new AfterPainting(
        *shown, [] { return true; },
        [] {
            std::puts("painted");
            std::fflush(stdout);
            QApplication::quit();
        });
    window.show();
    return QApplication::exec();
}
