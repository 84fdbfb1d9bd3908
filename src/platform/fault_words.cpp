// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/fault_words.h"

#include "platform/runtime_error.h"

using namespace Qt::StringLiterals;

QString faultWords(const RuntimeError &error)
{
    switch (error.number()) {
    case RuntimeError::OutOfMemory:
        return u"Die Datei ist zu groß."_s;
    case RuntimeError::FileNotFound:
        return u"Die Datei gibt es nicht."_s;
    case RuntimeError::DiskFull:
        return u"Auf dem Datenträger ist kein Platz mehr."_s;
    case RuntimeError::PermissionDenied:
        return u"Dort darf nicht geschrieben oder gelesen werden."_s;
    case RuntimeError::PathAccess:
        return u"Diese Datei kann nicht geschrieben oder gelesen werden."_s;
    case RuntimeError::PathNotFound:
        return u"Den Ordner gibt es nicht."_s;
    case RuntimeError::PrinterError:
        return u"Der Drucker ist nicht bereit oder nicht mehr da."_s;
    default:
        return u"Es ist ein unerwarteter Fehler aufgetreten."_s;
    }
}
