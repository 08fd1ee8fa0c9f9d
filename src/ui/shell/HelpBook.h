#pragma once

#include <QList>
#include <QString>

/// The help file: an SQLite file with a table `page(position, name, title, text)`, the text in Markdown. A
/// window's page is called like the window.
class HelpBook
{
public:
    struct Page
    {
        QString name;
        QString title;
        QString text;
    };

    /// Reads the whole file (it is small); no pages when it is missing or damaged.
    explicit HelpBook(const QString &path);

    const QList<Page> &Pages() const { return m_pages; }
    /// The index of the page called `name`, or that of the first page.
    qsizetype IndexOf(const QString &name) const;

private:
    QList<Page> m_pages;
};
