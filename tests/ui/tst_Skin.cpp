#include "support/SkinnedInstall.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/SkinnedDialog.h"
#include "ui/skin/WindowFrame.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TitleBar.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

class SomeDialog : public SkinnedDialog
{
public:
    explicit SomeDialog(QWidget *owner = nullptr)
        : SkinnedDialog(owner)
        , BtnOk(new SkinButton(u"BtnOk"_s, u"OK"_s, this))
        , BtnCancel(new SkinButton(u"BtnCancel"_s, u"Cancel"_s, this))
    {
        resize(420, 240);
        Skin(2);
        SetDefaultButton(BtnOk);
        connect(BtnOk, &SkinButton::clicked, this, &QDialog::accept);
        connect(BtnCancel, &SkinButton::clicked, this, &QDialog::reject);
    }

    void Skin(int layout)
    {
        SkinDialog(u"A title"_s);
        SkinOkCancel(BtnOk, BtnCancel, layout);
    }

    SkinButton *BtnOk;
    SkinButton *BtnCancel;
};

} // namespace

class TestSkin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install.emplace(); }

    void PicturesKeepTheirLogicalSize_data()
    {
        QTest::addColumn<double>("ratio");
        for (const double ratio : {0.8, 1.0, 1.25, 1.5, 2.0, 3.0})
            QTest::newRow(qPrintable(QString::number(ratio))) << ratio;
    }

    void PicturesKeepTheirLogicalSize()
    {
        QFETCH(double, ratio);
        const SkinLibrary library;
        for (const QString &name : {u"BTN_OK"_s, u"MAIN_BACK"_s, u"ICON_TIME"_s}) {
            const QPixmap picture = library.Bitmap(name, ratio);
            QVERIFY(!picture.isNull());
            const QSizeF off = picture.deviceIndependentSize() - QSizeF(library.BitmapSize(name));
            QVERIFY2(qAbs(off.width()) <= 1 && qAbs(off.height()) <= 1, qPrintable(name));
        }
    }

    void ADamagedLibraryIsNoPictures_data()
    {
        QTest::addColumn<int>("keep"); // -1: no file, -2: zeroes in the middle
        QTest::newRow("missing") << -1;
        QTest::newRow("empty") << 0;
        QTest::newRow("cut in the header") << 50;
        QTest::newRow("cut in a page") << 30000;
        QTest::newRow("overwritten") << -2;
    }

    void ADamagedLibraryIsNoPictures()
    {
        QFETCH(int, keep);
        QByteArray bytes = m_install->Read(u"Bitmap/1024_CH.DLL"_s);
        QVERIFY(bytes.size() > 100000);
        m_install.reset();
        TestInstall broken;
        if (keep >= 0)
            broken.Write(u"Bitmap/1024_CH.DLL"_s, bytes.left(keep));
        else if (keep == -2)
            broken.Write(u"Bitmap/1024_CH.DLL"_s,
                         bytes.replace(2000, bytes.size() - 4000, QByteArray(bytes.size() - 4000, '\0')));
        const SkinLibrary library;
        QVERIFY(library.Bitmap(u"MAIN_BG"_s, 1).isNull());
        QVERIFY(!library.IsUsable());
        QCOMPARE(library.Color(u"focus"_s, Qt::green), QColor(Qt::green));
        SomeDialog dialog;
        dialog.show();
        QVERIFY(!dialog.grab().isNull());
        QTest::mouseClick(dialog.BtnOk, Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void AReplacedLibraryShowsAtOnce()
    {
        const QByteArray bytes = m_install->Read(u"Bitmap/1024_CH.DLL"_s);
        m_install.reset();
        TestInstall own;
        own.Write(u"Bitmap/1024_CH.DLL"_s, bytes);
        QVERIFY(!SkinLibrary().Bitmap(u"BTN_OK"_s, 1).isNull());
        own.Write(u"Bitmap/1024_CH.DLL"_s, "replaced");
        QVERIFY(SkinLibrary().Bitmap(u"BTN_OK"_s, 1).isNull());
    }

    void ButtonTakesOneFrame_data()
    {
        QTest::addColumn<QString>("bitmap");
        QTest::addColumn<int>("frames");
        QTest::newRow("four frames") << u"BTN_OK"_s << 4;
        QTest::newRow("five frames") << u"BTN_DELETE"_s << 5;
    }

    void ButtonTakesOneFrame()
    {
        QFETCH(QString, bitmap);
        QFETCH(int, frames);
        const SkinLibrary library;
        QWidget window;
        SkinButton button(u"Btn"_s, u"Button"_s, &window);
        button.SetButton(bitmap, library, frames);
        const QSize strip = library.BitmapSize(bitmap);
        QCOMPARE(button.size(), QSize(strip.width() / frames, strip.height()));

        // Every state looks different from every other.
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.setFocus();
        QList<QImage> looks{button.grab().toImage()};
        button.setFocus();
        looks.append(button.grab().toImage());
        button.setDown(true);
        looks.append(button.grab().toImage());
        button.setDown(false);
        button.setEnabled(false);
        looks.append(button.grab().toImage());
        for (qsizetype i = 0; i < looks.size(); ++i)
            QCOMPARE(looks.indexOf(looks[i]), i);
    }

    void KeysPressAButton()
    {
        QWidget window;
        SkinButton button(u"Btn"_s, u"Button"_s, &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        button.setFocus();
        QVERIFY(button.hasFocus());
        QSignalSpy clicks(&button, &SkinButton::clicked);
        for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(&button, key);
        QCOMPARE(clicks.size(), 3);
        button.setEnabled(false);
        QTest::keyClick(&button, Qt::Key_Return);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicks.size(), 3);
    }

    void DialogFrame()
    {
        SomeDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        const SkinLibrary library;
        const int title = library.BitmapSize(u"DIALOG_TITLE"_s).height();
        const auto *bar = dialog.findChild<TitleBar *>(u"ImgTitleBar"_s);
        QCOMPARE(bar->geometry(), QRect(0, 0, 420, title));
        const auto *close = dialog.findChild<SkinButton *>(u"XBtn_Sys_Close"_s);
        QCOMPARE(close->x(), 420 - close->width() - 10);
        QCOMPARE(close->y(), (title - close->height()) / 2);
        QVERIFY((dialog.geometry().center() - dialog.screen()->geometry().center()).manhattanLength() <= 2);
        // Three equal gaps beside and between the buttons.
        const int gap = (420 - 2 * dialog.BtnOk->width()) / 3;
        QCOMPARE(dialog.BtnOk->x(), gap);
        QCOMPARE(dialog.BtnCancel->x(), 2 * gap + dialog.BtnOk->width());
        QCOMPARE(dialog.grab().toImage().pixelColor(210, 120), QColor(233, 233, 233));

        const QImage once = dialog.grab().toImage();
        dialog.Skin(2);
        QCOMPARE(dialog.grab().toImage(), once);
        dialog.Skin(1);
        QCOMPARE(dialog.BtnOk->x(), 420 - 120);
    }

    void DialogKeys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("result");
        QTest::newRow("Enter") << Qt::Key_Enter << Qt::KeyboardModifiers() << int(QDialog::Accepted);
        QTest::newRow("Return") << Qt::Key_Return << Qt::KeyboardModifiers() << int(QDialog::Accepted);
        QTest::newRow("Escape") << Qt::Key_Escape << Qt::KeyboardModifiers() << int(QDialog::Rejected);
        QTest::newRow("Alt+F4") << Qt::Key_F4 << Qt::KeyboardModifiers(Qt::AltModifier)
                                << int(QDialog::Rejected);
    }

    void DialogKeys()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        SomeDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        dialog.setResult(-1);
        QTest::keyClick(&dialog, key, modifiers);
        QTEST(dialog.result(), "result");
        QVERIFY(!dialog.isVisible());
    }

    void TitleBarDragsTheDialog()
    {
        SomeDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto *bar = dialog.findChild<TitleBar *>(u"ImgTitleBar"_s);
        const QPoint before = dialog.pos();
        QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(100, 10));
        QTest::mouseMove(bar, QPoint(130, 30));
        QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(100, 10));
        QCOMPARE(dialog.pos() - before, QPoint(30, 20));
        QTest::mouseMove(bar, QPoint(10, 10));
        QCOMPARE(dialog.pos() - before, QPoint(30, 20));
    }

    void WindowEdgeHasTwoColours()
    {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        Public_Function::DrawWindowEdge(painter, image.size());
        painter.end();
        for (const QPoint &corner : {QPoint(0, 0), QPoint(59, 39), QPoint(0, 20), QPoint(30, 39)})
            QCOMPARE(image.pixelColor(corner), QColor(141, 148, 167));
        for (const QPoint &inner : {QPoint(1, 1), QPoint(58, 38), QPoint(1, 20), QPoint(30, 38)})
            QCOMPARE(image.pixelColor(inner), QColor(211, 214, 224));
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::black));
    }

private:
    std::optional<SkinnedInstall> m_install;
};

QTEST_MAIN(TestSkin)
#include "tst_Skin.moc"
