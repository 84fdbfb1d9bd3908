// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/handbook/help_pages.h"

#include <QWidget>

class Gate;
class HelpBrowser;
class QKeySequence;
class QLabel;
class QLineEdit;
class QPagedPaintDevice;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The handbook in a window of its own that blocks nothing, so that the board can be played beside it:
/// contents on the left, the page on the right, above them back and forward, search, size of the text and
/// printing. Esc closes it, and closed it is only hidden.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    /// `folder` of the handbook, as the file system takes it. If nothing is there, the window says so.
    /// `owner` is the window that it stays above.
    HelpWindow(const QString &folder, Gate &gate, QWidget *owner = nullptr);
    ~HelpWindow() override;

    HelpBrowser *browser() const { return browser_; }
    const HelpPages &handbook() const { return pages_; }

    /// As it was when it was made: the first page, no search, its place. Only the size of the text stays.
    void startAfresh();
    /// Goes to the next place of the search box's text, through all pages and round. Without such a place it
    /// says "nicht gefunden" and stays.
    void searchOn(bool backward);
    /// Prints the page that is shown.
    void printTo(QPagedPaintDevice &device);

private:
    QWidget *makeTools();
    QToolButton *makeTool(const char *name, const QString &tip, const QKeySequence &key);
    QToolButton *makeIconTool(const char *name, const QString &icon, const QString &tip,
                              const QKeySequence &key);
    QToolButton *makeTextTool(const char *name, const QString &text, const QString &tip,
                              const QKeySequence &key);
    void makeSearch();
    void fillContents();
    void followContents(const QTreeWidgetItem *item);
    void markPage(const QUrl &address);
    bool pageHolds(const HelpPage &page, const QString &text);
    void print();
    void placeBesideBoard();

    Gate &gate_;
    HelpPages pages_;
    HelpBrowser *browser_;
    QTreeWidget *contents_;
    QLineEdit *searchBox_;
    QLabel *searchState_;
};
