#pragma once

#include "hosts/common/page_layout.h"
#include "hosts/desktop/sheets/control_view.h"

#include <QWidget>

#include <memory>
#include <vector>

class QBoxLayout;
class QGridLayout;
class SheetPage;
struct PageControl;

namespace desktop {

class PageAddition;

/// A page of a sheet, its controls in the rows that every host lays them out in.
class PageWidget final : public QWidget {
public:
    /// `page` outlives the widget. `banner` puts title and description on a band at the top, as
    /// wizards have it. `taken` are captions with the letters that the sheet's own buttons use.
    PageWidget(SheetPage& page, bool banner, QStringList taken, const ActOnControl& act,
               QWidget* parent = nullptr);
    ~PageWidget() override;

    /// Shows all controls as they stand.
    void showState();

    /// Takes what the person has begun to type. False where that is no value: then its control,
    /// which has said so, has the focus.
    bool finishEditing();

    /// Puts what the window adds below all controls; the page owns it from then on.
    void add(PageAddition* addition);

    /// Says in a sentence what was not done; an empty one has nothing more to say.
    std::function<void(const LiveSentence& sentence)> onSaid;

    /// Puts the focus on the first control that takes it; false when there is none.
    bool focusFirst();

private:
    void addBanner();
    void addRows();
    QGridLayout* addGrid();
    void addField(QGridLayout& grid, const PageRow& row);
    void addActions(const PageRow& row);
    void addFramed(const PageRow& row);
    void nameField(std::size_t caption, std::size_t field);
    QWidget* widgetOf(std::size_t index) const;
    void markLetters();
    bool isBanner(std::size_t index) const;

    SheetPage& page_;
    ActOnControl act_;
    PageLayout layout_;
    QStringList taken_;
    std::vector<std::unique_ptr<ControlView>>
        views_; ///< by the index of the control; null for timers
    PageAddition* addition_ = nullptr;
    QBoxLayout* column_ = nullptr;
    bool marking_ = false;
};

} // namespace desktop
