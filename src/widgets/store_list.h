// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

class QTimer;
class WordStore;

/// A list box that shows a word store. It holds no words of its own: the store is the list, this is its
/// picture, brought up to date when it is visible. The selection goes with its word when rows come or go
/// above it; where the word itself has gone the row stays selected. In a list in which many rows can be
/// selected the rows stay selected.
class StoreList : public QListView
{
    Q_OBJECT

public:
    explicit StoreList(QWidget *parent = nullptr);
    ~StoreList() override;

    using QListView::show;
    /// Shows the rows of `store` (which must live as long as the list does, or until another one is shown).
    void show(WordStore *store);
    WordStore *store() const { return store_; }
    /// The selected row, or -1.
    int ListIndex() const;
    /// Selects a row and scrolls to it; a row that is not there selects none.
    void setListIndex(int row);
    /// All selected rows, ascending.
    QList<int> selectedRows() const;
    QStringList selectedWords() const;
    /// Selects these rows and no others; the list must allow it.
    void selectRows(const QList<int> &rows);

signals:
    /// A left click on a row that exists.
    void rowClicked(int row);
    /// A right press, at the point in this widget's pixels.
    void rightPressed(const QPoint &position);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void connectNotify(const QMetaMethod &signal) override;
    void keyPressEvent(QKeyEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void showEvent(QShowEvent *event) override;

private:
    class Rows;
    void markStale();
    void refresh() const;
    void select(const QList<std::pair<int, int>> &ranges) const;
    int rowOfSelected(int row) const;

    WordStore *store_ = nullptr;
    Rows *rows_;
    QTimer *later_;
    QString selected_; ///< the selected word
};
