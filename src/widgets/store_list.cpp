// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/store_list.h"

#include "platform/word_store.h"
#include "widgets/long_press.h"

#include <QAbstractListModel>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

/// The rows of a store as a model. A store tells that it has changed, not how; the count that the view works
/// with is therefore one of the last refresh, and a row that has gone since reads as the empty string.
class StoreList::Rows : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : count_; }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole || !index.isValid() || store_ == nullptr)
            return {};
        return store_->at(index.row());
    }

    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        // Whether anything is dragged is the view's business.
        return QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled;
    }

    void show(const WordStore *store)
    {
        store_ = store;
        stale_ = true;
    }

    void markStale() { stale_ = true; }
    bool isStale() const { return stale_; }

    void reload()
    {
        beginResetModel();
        count_ = store_ == nullptr ? 0 : store_->count();
        stale_ = false;
        endResetModel();
    }

private:
    const WordStore *store_ = nullptr;
    int count_ = 0;
    bool stale_ = false;
};

StoreList::StoreList(QWidget *parent)
    : QListView(parent)
    , rows_(new Rows(this))
    , later_(new QTimer(this))
{
    setModel(rows_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    later_->setSingleShot(true);
    connect(later_, &QTimer::timeout, this, &StoreList::refresh);
}

StoreList::~StoreList() = default;

void StoreList::show(WordStore *store)
{
    if (store_ != nullptr)
        disconnect(store_, nullptr, this, nullptr);
    store_ = store;
    rows_->show(store);
    if (store_ != nullptr) {
        connect(store_, &WordStore::changed, this, &StoreList::markStale);
        connect(store_, &QObject::destroyed, this, [this] {
            store_ = nullptr;
            rows_->show(nullptr);
            rows_->reload();
        });
    }
    clearSelection();
    refresh();
}

void StoreList::markStale()
{
    // Thousands of changes may come in a row: the picture is put right once, when they are done or a row is
    // asked for.
    rows_->markStale();
    if (isVisible() && !later_->isActive())
        later_->start(0);
}

void StoreList::refresh() const
{
    if (!rows_->isStale())
        return;
    const int row = currentIndex().row();
    const int top = verticalScrollBar()->value();
    if (selectionMode() == SingleSelection) {
        rows_->reload();
        selectionModel()->setCurrentIndex(rows_->index(rowOfSelected(row)),
                                          QItemSelectionModel::ClearAndSelect);
    } else {
        const QItemSelection selected = selectionModel()->selection();
        QList<std::pair<int, int>> ranges;
        for (const QItemSelectionRange &range : selected)
            ranges.append({range.top(), range.bottom()});
        rows_->reload();
        select(ranges);
        selectionModel()->setCurrentIndex(rows_->index(row), QItemSelectionModel::NoUpdate);
    }
    verticalScrollBar()->setValue(top);
}

void StoreList::select(const QList<std::pair<int, int>> &ranges) const
{
    QItemSelection selection;
    const int last = rows_->rowCount() - 1;
    for (const auto &[top, bottom] : ranges)
        if (top >= 0 && top <= last)
            selection.append(QItemSelectionRange(rows_->index(top), rows_->index(std::min(bottom, last))));
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QList<int> StoreList::selectedRows() const
{
    refresh();
    QList<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    std::sort(rows.begin(), rows.end());
    return rows;
}

QStringList StoreList::selectedWords() const
{
    QStringList words;
    for (const int row : selectedRows())
        words.append(store_ == nullptr ? QString() : store_->at(row));
    return words;
}

void StoreList::selectRows(const QList<int> &rows)
{
    refresh();
    QList<std::pair<int, int>> ranges;
    for (const int row : rows)
        ranges.append({row, row});
    select(ranges);
}

/// The row nearest to `row` that has the selected word, or `row` if there is none.
int StoreList::rowOfSelected(int row) const
{
    const int count = rows_->rowCount();
    if (row < 0 || store_ == nullptr)
        return row;
    for (int away = 0; row - away >= 0 || row + away < count; ++away)
        for (const int candidate : {row + away, row - away})
            if (candidate >= 0 && candidate < count && store_->at(candidate) == selected_)
                return candidate;
    return row;
}

int StoreList::ListIndex() const
{
    refresh();
    return currentIndex().row();
}

void StoreList::setListIndex(int row)
{
    refresh();
    const QModelIndex index = row >= 0 && row < rows_->rowCount() ? rows_->index(row) : QModelIndex();
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (index.isValid())
        scrollTo(index);
}

void StoreList::mousePressEvent(QMouseEvent *event)
{
    refresh();
    if (event->button() == Qt::RightButton) {
        event->accept();
        emit rightPressed(event->position().toPoint());
        return;
    }
    QListView::mousePressEvent(event);
}

void StoreList::mouseReleaseEvent(QMouseEvent *event)
{
    if (LongPress::takesBack(*event)) {
        setState(NoState); // the rows stay marked as they are
        return;
    }
    QListView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid())
        emit rowClicked(index.row());
}

void StoreList::connectNotify(const QMetaMethod &signal)
{
    if (signal == QMetaMethod::fromSignal(&StoreList::rightPressed))
        LongPress::offer(viewport());
}

void StoreList::keyPressEvent(QKeyEvent *event)
{
    refresh();
    QListView::keyPressEvent(event);
}

void StoreList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    selected_ = current.data().toString();
    QListView::currentChanged(current, previous);
}

void StoreList::showEvent(QShowEvent *event)
{
    refresh();
    QListView::showEvent(event);
}
