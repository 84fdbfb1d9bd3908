// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class ListLoader;
class QWidget;
struct Ground;
struct WordLists;

/// Opens the window of the word chooser, and makes the list to retype of the words that are handed over
/// there.
class WordChooser : public QObject
{
    Q_OBJECT

public:
    WordChooser(Ground &ground, WordLists &lists, ListLoader &loader, QWidget *form,
                QObject *parent = nullptr);

    /// Returns when the window is closed.
    void open();

signals:
    /// `CorrectWordList` holds the words that are to be retyped, and no others.
    void wordsChosen();

private:
    Ground &ground_;
    WordLists &lists_;
    ListLoader &loader_;
    QWidget *form_;
};
