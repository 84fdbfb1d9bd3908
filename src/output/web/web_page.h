// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

#include <QByteArray>
#include <QDate>
#include <QString>

/// A web page of a session, as the window `FrmSaveAsWeb` wishes it. Paths in stored form.
struct WebPage
{
    QString session;
    QString file;

    QString title;
    QDate date; ///< behind the title; invalid: none

    bool addPicture = false;
    QString picture;       ///< its path; empty: none
    bool shortName = true; ///< the page looks for the picture beside itself
    bool pictureMoves = false;
    int pictureLeft = 0; ///< pixels
    int pictureTop = 0;

    bool tilesMove = true;
    bool framed = true;
    int letterSteps = 0; ///< 1 to 5 steps larger than usual
    bool ownColours = false;
    Colour back = colours::white;     ///< of the page
    Colour tileBack = colours::white; ///< of all tiles, with own colours
    Colour text = colours::black;

    QByteArray script; ///< gives the page SET_DRAGGABLE; ASCII
};

/// Writes the page: the session's tiles at their places, and the script that lets them be dragged. A tile
/// with a type, place or caption missing is skipped; a place that is no number counts as 0. Throws
/// RuntimeError as ReadWholeFile and writeFileAtomically; the old file then stays.
void MakeWebpage(const WebPage &page);
