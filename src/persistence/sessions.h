// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <optional>

class BoardNews;
class Canvas;
class CommandRouter;
class IniFile;
class ListLoader;
struct Ground;
struct MainControls;
struct WordLists;

/// Saves the board as a session and opens one, with the stem list that goes with it.
class Sessions : public QObject
{
    Q_OBJECT

public:
    /// What a session is made of and put into.
    struct Rooms
    {
        Canvas &canvas;
        ListLoader &loader;
        BoardNews &news;
    };

    Sessions(Ground &ground, const MainControls &controls, WordLists &lists, const Rooms &rooms,
             QObject *parent = nullptr);

    void registerCommands(CommandRouter &router);
    /// Both ask for a path where none (stored form) is given. A session that was opened by the dialog has
    /// nothing before it to undo; one that came by its path, from another start, is a step like any other.
    void SaveObjects(const QString &path = {});
    void RestoreObjects(const QString &path = {});

    void makeCurrent(const QString &path);
    /// The session last opened or saved.
    QString CurrentSessionFile() const { return CurrentSessionFile_; }
    /// The name that its web page gets by default.
    QString WebExportName() const { return WebExportName_; }

signals:
    /// The tiles of a session are about to take the board.
    void boardOpens();
    /// The tiles of a session lie on the board, whole, and every box about it is closed.
    void restored();
    /// A session has brought its own stem list.
    void listsChosen();

private:
    void writeSession(const QString &path);
    void tellSaved(const QString &path);
    std::optional<IniFile> read(const QString &path);
    bool readSession(const IniFile &file);
    void refuse(const QString &path, const QString &reason);
    void loadLists(const QString &name);

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    Rooms rooms_;
    QString CurrentSessionFile_;
    QString WebExportName_;
};
