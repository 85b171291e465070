#pragma once

#include <QString>
#include <functional>
#include <optional>

namespace vl {

class BoardModel;

// What the filter sheet edits: four of the board's filters, each change followed by
// `onChange`, which reloads the board so the live count follows the sheet.
class FilterBindings {
public:
    FilterBindings(BoardModel& board, std::function<void()> onChange);

    const std::optional<QString>& category() const;
    const std::optional<QString>& city() const;
    const std::optional<QString>& sort() const;
    bool direct() const;
    int total() const;

    void setCategory(std::optional<QString> category);
    void setCity(std::optional<QString> city);
    void setSort(std::optional<QString> sort);
    void setDirect(bool direct);
    // All four back to their first values; the search text and the picks stay.
    void clear();

private:
    BoardModel& m_board;
    std::function<void()> m_onChange;
};

} // namespace vl
