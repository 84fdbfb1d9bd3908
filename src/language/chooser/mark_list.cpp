// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/mark_list.h"

#include "widgets/finger.h"
#include "widgets/long_press.h"
#include "widgets/roomy_style.h"

#include <QAbstractListModel>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyleHints>

#include <algorithm>

namespace {

constexpr QSize rowSize{40, RoomyStyle::lowestRow}; ///< rows are as wide as the list

} // namespace

class MarkList::Rows : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::SizeHintRole)
            return rowSize;
        return role == Qt::DisplayRole ? rows_.value(index.row()) : QVariant();
    }

    const QStringList &rows() const { return rows_; }

    void show(const QStringList &rows)
    {
        const qsizetype old = rows_.size();
        if (rows.size() >= old && std::equal(rows_.begin(), rows_.end(), rows.begin())) {
            if (rows.size() == old)
                return;
            beginInsertRows({}, static_cast<int>(old), static_cast<int>(rows.size()) - 1);
            rows_ = rows;
            endInsertRows();
            return;
        }
        beginResetModel();
        rows_ = rows;
        endResetModel();
    }

private:
    QStringList rows_;
};

MarkList::MarkList(QWidget *parent)
    : QListView(parent)
    , rows_(new Rows(this))
{
    setModel(rows_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    connect(rows_, &QAbstractItemModel::modelReset, this, &MarkList::marksChanged);
}

void MarkList::showRows(const QStringList &rows) { rows_->show(rows); }

const QStringList &MarkList::rows() const { return rows_->rows(); }

int MarkList::markedCount() const
{
    int count = 0;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        count += range.height();
    return count;
}

QStringList MarkList::rowsMarked(bool wanted) const
{
    std::vector<bool> marks(static_cast<std::size_t>(rows().size()));
    for (const QItemSelectionRange &range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            marks[static_cast<std::size_t>(row)] = true;
    QStringList texts;
    for (std::size_t row = 0; row < marks.size(); ++row)
        if (marks[row] == wanted)
            texts.append(rows().at(static_cast<qsizetype>(row)));
    return texts;
}

/// One selection of whole ranges: row by row, thousands of marks would take quadratic time.
void MarkList::mark(const std::vector<bool> &marks)
{
    QItemSelection selection;
    for (auto from = std::find(marks.begin(), marks.end(), true); from != marks.end();) {
        const auto to = std::find(from, marks.end(), false);
        selection.append(QItemSelectionRange(rows_->index(static_cast<int>(from - marks.begin())),
                                             rows_->index(static_cast<int>(to - marks.begin()) - 1)));
        from = std::find(to, marks.end(), true);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!selection.isEmpty())
        scrollTo(selection.first().topLeft());
}

void MarkList::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        event->accept();
        return;
    }
    before_ = selectionModel()->selection();
    touched_ = tapCounts_ = finger::isBehind(*event);
    if (!touched_) {
        QListView::mousePressEvent(event);
        return;
    }
    touchedAt_ = event->position().toPoint();
    scrolledAt_ = verticalScrollBar()->value();
}

void MarkList::mouseMoveEvent(QMouseEvent *event)
{
    if (!touched_) {
        QListView::mouseMoveEvent(event);
        return;
    }
    const int way = event->position().toPoint().y() - touchedAt_.y();
    if (std::abs(way) >= QGuiApplication::styleHints()->startDragDistance())
        tapCounts_ = false;
    if (!tapCounts_)
        verticalScrollBar()->setValue(scrolledAt_ - way);
}

void MarkList::mouseReleaseEvent(QMouseEvent *event)
{
    if (LongPress::takesBack(*event)) {
        touched_ = false;
        setState(NoState);
        selectionModel()->select(before_, QItemSelectionModel::ClearAndSelect);
        return;
    }
    if (!touched_) {
        QListView::mouseReleaseEvent(event);
        return;
    }
    touched_ = false;
    const QModelIndex row = indexAt(touchedAt_);
    if (tapCounts_ && row.isValid())
        selectionModel()->setCurrentIndex(row, QItemSelectionModel::Toggle);
}

/// The base class would copy the current row only.
void MarkList::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        emit copyWanted();
    else
        QListView::keyPressEvent(event);
}

void MarkList::connectNotify(const QMetaMethod &signal)
{
    if (signal == QMetaMethod::fromSignal(&MarkList::menuWanted))
        LongPress::offer(viewport());
}

void MarkList::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    emit menuWanted(event->globalPos());
}

void MarkList::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    emit marksChanged();
}
