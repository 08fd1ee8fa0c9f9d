#pragma once

#include <QAbstractItemView>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

/// What tests do with a dialog as a person would.
namespace Dialogs {

inline void Show(QWidget &dialog)
{
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
}

/// The control of this name, which there has to be.
template <typename Control = QWidget>
Control *Part(const QWidget &dialog, const QByteArray &name)
{
    auto *part = dialog.findChild<Control *>(QString::fromLatin1(name));
    if (!part)
        qFatal("no %s", name.constData());
    return part;
}

/// Clicks into the upper left corner, where the mark of an option is.
inline void Click(const QWidget &dialog, const QByteArray &name)
{
    QTest::mouseClick(Part(dialog, name), Qt::LeftButton, {}, QPoint(12, 12));
}

inline void ClickRow(const QAbstractItemView *list, int row, bool twice = false)
{
    const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    if (twice)
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
}

/// Names of the controls, of those whose names match a pattern, that have a property.
inline QString Those(const QWidget &dialog, const QString &controls, const char *property)
{
    QStringList names;
    for (const auto *control : dialog.findChildren<QWidget *>(QRegularExpression(controls))) {
        if (control->property(property).toBool())
            names += control->objectName();
    }
    return names.join(u' ');
}

/// The texts of a list's rows; a star leads the current one.
inline QString Rows(const QAbstractItemView *list)
{
    QStringList texts;
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QString text = list->model()->index(row, 0).data().toString();
        texts += row == list->currentIndex().row() ? u'*' + text : text;
    }
    return texts.join(u' ');
}

} // namespace Dialogs
