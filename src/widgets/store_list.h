// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

class WordStore;
class QStringListModel;

/// A list box that shows a word store. It holds no words of its own: the store is the list, this is its picture, brought up to date when it is visible.
class StoreList : public QListView
{
    Q_OBJECT

public:
    explicit StoreList(QWidget *parent = nullptr);
    void show(WordStore *store);
    WordStore *store() const { return store_; }
    /// The selected row, or -1.
    int ListIndex() const;
    void setListIndex(int row);

signals:
    /// A left click on a row that exists.
    void rowClicked(int row);
    /// A right press, at the point in this widget's pixels.
    void rightPressed(const QPoint &position);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void refresh();

    WordStore *store_ = nullptr;
    QStringListModel *model_;
};
