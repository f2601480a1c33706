#pragma once

#include <QByteArray>
#include <QString>

/// A page that needs nothing besides itself: it loads nothing from anywhere, and runs no script but
/// its own. Light or dark as the reader's desktop is.
class Page
{
public:
    /// @p title is text; @p style and @p script are the page's own, besides what all pages have.
    Page(const QString& title, const QByteArray& style, const QByteArray& script);

    /// Adds HTML as it is.
    void add(const QByteArray& html) { m_body += html; }
    /// Adds text of anybody's in an element; @p attributes are HTML.
    void addText(const char* element, const QString& text, const QByteArray& attributes = {});

    QByteArray html() const;

private:
    QString m_title;
    QByteArray m_style;
    QByteArray m_script;
    QByteArray m_body;
};
