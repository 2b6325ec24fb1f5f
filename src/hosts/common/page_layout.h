#pragma once

#include <cstddef>
#include <optional>
#include <vector>

class SheetPage;

/// A row of a page. Controls go by their index in `SheetPage::controls`.
struct PageRow {
    enum class Kind {
        alone,   ///< one control, as wide as the page
        field,   ///< a caption and what it names, beside each other; the captions of rows of this
                 ///< kind that follow each other stand below each other, and so do the fields
        frame,   ///< a box, and the control in it, where there is one
        actions, ///< buttons side by side
    };

    /// How wide the first control of a field is.
    enum class Width {
        rest,   ///< all that the page leaves
        number, ///< that of a number, which the arrows next to it change
        own,    ///< that of what it holds
    };

    Kind kind = Kind::alone;
    std::optional<std::size_t> caption; ///< of a field; without one the field stands in its column
    std::vector<std::size_t> controls;  ///< from left to right; none for a caption without a field
    Width width = Width::rest;
    bool grows = false; ///< takes a share of the height that the others leave
};

/// Where the controls of a page stand, by their roles. What is not seen, a timer, stands nowhere.
struct PageLayout {
    std::vector<std::size_t> banner; ///< on the band at the top, in order; none without a band
    std::vector<PageRow> rows;       ///< from top to bottom
};

/// `banner` puts title and description on a band, as wizards have it.
PageLayout layoutOf(const SheetPage& page, bool banner);
