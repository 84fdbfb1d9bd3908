// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class BoardNews;
class Canvas;
struct Ground;

/// The backup of the board: with the setting "UseBackup" every change is on disk before the next event is
/// handled, so that a crash loses at most the last action. The file is there only while the program runs; a
/// clean end deletes it.
class Backup : public QObject
{
    Q_OBJECT

public:
    Backup(Ground &ground, Canvas &canvas, BoardNews &news, QObject *parent = nullptr);

    /// "WLXAutoSave.bak" in the program's folder, stored form.
    static QString file(const Ground &ground);

    /// Writes the board; an empty path asks for one.
    void SaveMyObjects(const QString &path = {});
    /// Replaces the board by the file's; an empty path asks for one. A file that cannot be read is told, and
    /// the board stays.
    void RestoreMyObjects(const QString &path = {});

public slots:
    /// The board has changed: writes the backup file if the setting is on.
    void saveIfWanted();

private:
    void writeBoard(const QString &path);
    void readBoard(const QString &path);
    void tellLost();

    Ground &ground_;
    Canvas &canvas_;
    BoardNews &news_;
    QString toldLost_; ///< the letters of the board that the file does not hold
};
