// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QItemSelection>
#include <QListView>
#include <QStringList>

#include <vector>

/// A list in which any number of rows can be marked: by mouse and keys as lists of the desktop do it (with
/// Shift a range, with Ctrl single rows, Ctrl+A all), with a finger by a tap on each, while a finger that is
/// drawn scrolls and one that rests opens the menu. A right press leaves the marks as they are.
class MarkList : public QListView
{
    Q_OBJECT

public:
    explicit MarkList(QWidget *parent = nullptr);

    /// Shows these rows. The marks stay if rows have only come behind those that were shown.
    void showRows(const QStringList &rows);
    const QStringList &rows() const;

    int markedCount() const;
    /// The marked rows in list order, and the others.
    QStringList marked() const { return rowsMarked(true); }
    QStringList unmarked() const { return rowsMarked(false); }
    void markAll() { selectAll(); }
    void clearMarks() { clearSelection(); }
    /// Marks the rows for which `marks`, as long as the list, is true, and no others,
    /// and scrolls to the first of them.
    void mark(const std::vector<bool> &marks);

signals:
    void marksChanged();
    /// The menu is wanted, at that point of the screen.
    void menuWanted(const QPoint &position);
    /// Ctrl+C.
    void copyWanted();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void connectNotify(const QMetaMethod &signal) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    class Rows;
    QStringList rowsMarked(bool wanted) const;

    Rows *rows_;
    bool touched_ = false;   ///< a finger lies on the list
    bool tapCounts_ = false; ///< and has not been drawn
    QItemSelection before_;  ///< what was marked when the press came
    QPoint touchedAt_;       ///< pixels of the viewport
    int scrolledAt_ = 0;     ///< the scroll bar's value then
};
