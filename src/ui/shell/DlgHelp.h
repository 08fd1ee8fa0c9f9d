#pragma once

#include "ui/shell/HelpBook.h"
#include "ui/skin/SkinnedDialog.h"

class QListWidget;
class QTextBrowser;

/// Shows the help: the list of pages, the page, and links between them.
class DlgHelp : public SkinnedDialog
{
    Q_OBJECT

public:
    /// Opens at the page called `pageName`, else at the first.
    DlgHelp(const HelpBook &book, const QString &pageName, QWidget *owner);

private:
    void ShowPage(qsizetype index);

    HelpBook m_book;
    QListWidget *m_contents;
    QTextBrowser *m_page;
};
