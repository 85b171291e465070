#include "app/discovery/FilterBindings.h"

#include "app/discovery/BoardModel.h"

namespace vl {

FilterBindings::FilterBindings(BoardModel& board, std::function<void()> onChange)
    : m_board(board)
    , m_onChange(std::move(onChange))
{
}

const std::optional<QString>& FilterBindings::category() const
{
    return m_board.category();
}

const std::optional<QString>& FilterBindings::city() const
{
    return m_board.city();
}

const std::optional<QString>& FilterBindings::sort() const
{
    return m_board.sort();
}

bool FilterBindings::direct() const
{
    return m_board.direct();
}

int FilterBindings::total() const
{
    return m_board.total();
}

void FilterBindings::setCategory(std::optional<QString> category)
{
    m_board.setCategory(std::move(category));
    m_onChange();
}

void FilterBindings::setCity(std::optional<QString> city)
{
    m_board.setCity(std::move(city));
    m_onChange();
}

void FilterBindings::setSort(std::optional<QString> sort)
{
    m_board.setSort(std::move(sort));
    m_onChange();
}

void FilterBindings::setDirect(bool direct)
{
    m_board.setDirect(direct);
    m_onChange();
}

void FilterBindings::clear()
{
    m_board.setCategory(std::nullopt);
    m_board.setCity(std::nullopt);
    m_board.setSort(std::nullopt);
    m_board.setDirect(false);
    m_onChange();
}

} // namespace vl
