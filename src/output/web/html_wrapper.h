// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/web/html_text.h"

#include <optional>

/// A picture that lies on the page at a place in pixels.
struct PagePicture
{
    QString address; ///< a URL
    int left = 0;
    int top = 0;
};

/// Writes a page of HTML 3.2, one line a call. While no page is open every call does nothing. A QString is a
/// text: it is shown as it is and cannot become markup; bytes are HTML or script already.
class CHTMLWrapper
{
public:
    QString Filename() const { return fileName_; }
    void setFilename(const QString &storedPath) { fileName_ = storedPath; }

    /// `expected` is about how many bytes the page will have.
    void OpenHTMLDoc(qsizetype expected = 0);
    void OpenHTMLHeader(const QString &title);
    void CloseHTMLHeader() { line("</HEAD>"); }
    void OpenHTMLBody(Colour back, Colour text, const std::optional<PagePicture> &picture = {});
    /// The script, and after it the call, if there is one; then the body's end.
    void CloseHTMLBody(const QByteArray &script, const QByteArray &call);
    void CloseHTMLBody2() { line("</BODY>"); }
    /// Ends the page and writes the file. Throws RuntimeError as writeFileAtomically.
    void CloseHTMLDoc();

    void InsertBreak() { line("<BR>"); }
    void InsertComment(const QString &text);
    void InsertHorizontalRule() { line("<HR>"); }
    void InsertJavaScript(const QByteArray &code, const QString &noScript);
    /// A link to a page, or to the address of a person.
    void InsertLink(const QString &address, const QString &text, bool isMail);
    void InsertPicture(const QString &address);
    void StartTable(int border) { line("<TABLE BORDER=", border, ">"); }
    void StartTableRow() { line("<TR>"); }
    void EndTableRow() { line("</TR>"); }
    void EndTable() { line("</TABLE>"); }
    void WriteTableData(const QString &text) { line("<TD>", text, "</TD>"); }
    void WriteTableHeader(const QString &text) { line("<TH>", text, "</TH>"); }
    void WriteBoldText(const QString &text) { line("<B>", text, "</B>"); }
    void WriteItalicText(const QString &text) { line("<I>", text, "</I>"); }
    void WriteParagraph(const QString &text) { line("<P>", text, "</P>"); }
    void WritePre(const QString &text) { line("<PRE>", text, "</PRE>"); }
    void WriteHeader(int level, const QString &text) { line("<H", level, ">", text, "</H", level, ">"); }
    /// The parts one behind the other, as `html::append` takes them.
    template <typename... Parts> void WriteMagnet(const Parts &...parts) { line(parts...); }

private:
    template <typename... Parts> void line(const Parts &...parts)
    {
        if (!open_)
            return;
        (html::append(page_, parts), ...);
        html::append(page_, "\r\n");
    }
    void blockOf(const PagePicture &picture, const QByteArray &id, const QByteArray &size);
    void openScript();

    QString fileName_;
    std::string page_;
    bool open_ = false;
};
