#pragma once

#include "ui/widgets/HeldPicture.h"

#include <QWidget>

class QLabel;
class SkinButton;

/// A page of a user's records, on a background of the skin.
class ManagePage : public QWidget
{
    Q_OBJECT

public:
    ManagePage(const QString &objectName, const QString &accessibleName, const QString &background,
               QWidget *parent);

    /// Reads the files and shows what they hold.
    virtual void Refresh() = 0;

Q_SIGNALS:
    /// The page has nothing any more that could have the focus.
    void FocusLost();

protected:
    SkinButton *AddButton(const QString &objectName, const QString &accessibleName, const QString &bitmap);
    /// Puts buttons below the page's content, from its left edge or from its right edge on.
    static void PlaceFromLeft(const QList<SkinButton *> &buttons);
    static void PlaceFromRight(const QList<SkinButton *> &buttons);
    /// Shows a line on the page, or none.
    void ShowNotice(const QString &text);
    /// Shows that the file cannot be read, or nothing when it can.
    void ShowReadable(bool readable);

    static bool ConfirmDeletion();
    /// To be told after a deletion; says so when it failed.
    static void CheckDeletion(bool done);

    void paintEvent(QPaintEvent *event) override;

private:
    HeldPicture m_background;
    QLabel *m_notice;
};
