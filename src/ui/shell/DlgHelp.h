#pragma once

#include "ui/shell/HelpBook.h"
#include "ui/skin/SkinnedDialog.h"

class QLineEdit;
class QListWidget;
class QTextBrowser;

/// Shows the help: the list of pages, the page, and links between them. What is typed into the search box
/// leaves the pages in the list that hold all its words, and marks them.
class DlgHelp : public SkinnedDialog
{
    Q_OBJECT

public:
    /// Opens at the page called `pageName`, else at the first.
    DlgHelp(const HelpBook &book, const QString &pageName, QWidget *owner);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void ShowPage(qsizetype index);
    void Search();
    void MarkFound();
    QStringList SearchedWords() const;

    HelpBook m_book;
    QLineEdit *m_search;
    QListWidget *m_contents;
    QTextBrowser *m_page;
};
