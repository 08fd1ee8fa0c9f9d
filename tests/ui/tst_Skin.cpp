#include "platform/SqliteFile.h"
#include "support/SkinnedInstall.h"
#include "ui/shell/CoveredWindow.h"
#include "ui/shell/MenuPictures.h"
#include "ui/skin/Png.h"
#include "ui/skin/ReadyPictures.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/SkinnedDialog.h"
#include "ui/skin/StatusTexts.h"
#include "ui/widgets/ProgressBox.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TitleBar.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

namespace {

struct SomeDialog : SkinnedDialog
{
    SomeDialog()
        : SkinnedDialog(nullptr)
        , BtnOk(new SkinButton(u"BtnOk"_s, u"OK"_s, this))
        , BtnCancel(new SkinButton(u"BtnCancel"_s, u"Cancel"_s, this))
    {
        resize(420, 240);
        SkinDialog(u"A title"_s);
        SkinOkCancel(BtnOk, BtnCancel, 2);
        SetDefaultButton(BtnOk);
        connect(BtnOk, &SkinButton::clicked, this, &QDialog::accept);
        connect(BtnCancel, &SkinButton::clicked, this, &QDialog::reject);
        show();
        static_cast<void>(QTest::qWaitForWindowActive(this));
    }

    using SkinnedDialog::SkinOkCancel;
    SkinButton *BtnOk;
    SkinButton *BtnCancel;
};

} // namespace

/// The pictures, what is painted and written with them, and the dialog frame.
class TestSkin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install.emplace(); }

    void PicturesKeepTheirLogicalSize()
    {
        const SkinLibrary library;
        for (const QString &color : {u"focus"_s, u"window.title"_s, u"panel.face"_s, u"keyboard.ground"_s})
            QVERIFY2(library.Color(color, QColor()).isValid(), qPrintable(color));
        for (const double ratio : {0.8, 1.0, 1.25, 1.5, 2.0, 3.0}) {
            for (const QString &name : {u"BTN_OK"_s, u"MAIN_BACK"_s, u"ICON_TIME"_s}) {
                const QPixmap picture = library.Bitmap(name, ratio);
                QVERIFY2(!picture.isNull(), qPrintable(name));
                const QSizeF off = picture.deviceIndependentSize() - QSizeF(library.BitmapSize(name));
                QVERIFY2(qAbs(off.width()) <= 1 && qAbs(off.height()) <= 1, qPrintable(name));
            }
        }
    }

    void ADamagedLibraryIsNoPictures()
    {
        const QByteArray whole = m_install->Read(u"Bitmap/1024_CH.DLL"_s);
        QVERIFY(whole.size() > 100000);
        m_install.reset();
        const TestInstall own;
        own.Write(u"Bitmap/1024_CH.DLL"_s, whole);
        QVERIFY(!SkinLibrary().Bitmap(u"MAIN_BG"_s, 1).isNull());
        // Empty, cut in the header and in a page, overwritten in the middle, gone; each shows at once.
        for (const QByteArray &bytes :
             {QByteArray(""), whole.left(50), whole.left(30000),
              whole.left(2000) + QByteArray(whole.size() - 2000, '\0'), QByteArray()}) {
            own.Write(u"Bitmap/1024_CH.DLL"_s, bytes);
            if (bytes.isNull())
                QFile::remove(own.Native(u"Bitmap/1024_CH.DLL"_s));
            const SkinLibrary library;
            QVERIFY(library.Bitmap(u"MAIN_BG"_s, 1).isNull());
            QVERIFY(!library.IsUsable());
            QCOMPARE(library.Color(u"focus"_s, Qt::green), QColor(Qt::green));
            SomeDialog dialog;
            QVERIFY(!dialog.grab().isNull());
            QTest::mouseClick(dialog.BtnOk, Qt::LeftButton);
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        }
    }

    /// What lies ready looks like the library, and is used only while it is this library's and whole.
    void PicturesOfTheMenuLieReady()
    {
        const QByteArray whole = m_install->Read(u"Bitmap/1024_CH.DLL"_s);
        const QByteArray pixels = m_install->Read(u"Bitmap/1024_CH.PIX"_s);
        const QString shipped = m_install->Native(u"Bitmap/1024_CH.DLL"_s);
        QHash<QString, QImage> decoded;
        const ReadyPictures ready(shipped);
        for (const QString &name : MenuPictures()) {
            SqliteFile(shipped).Query("SELECT png FROM bitmap WHERE name = ? AND scale = 1", {name},
                                      [&](const SqliteFile::Row &row) {
                                          decoded[name] = Public_Function::DecodePng(row.Bytes(0));
                                          return false;
                                      });
            QVERIFY2(!decoded[name].isNull(), qPrintable(name));
            QCOMPARE(ready.Picture(name, 1),
                     decoded[name].convertToFormat(QImage::Format_ARGB32_Premultiplied));
            QVERIFY(ready.Picture(name, 2).isNull());
        }
        QString focus;
        SqliteFile(shipped).Query("SELECT value FROM theme WHERE key = 'focus'", {},
                                  [&](const SqliteFile::Row &row) {
                                      focus = row.Text(0);
                                      return false;
                                  });
        QCOMPARE(ready.Color(u"focus"_s), QColor(focus));

        // A damaged PNG is no picture, nor is one of a size that no skin has.
        QByteArray png;
        QBuffer buffer(&png);
        decoded[u"MAIN_BACK"_s].save(&buffer, "PNG");
        QVERIFY(!Public_Function::DecodePng(png).isNull());
        QVERIFY(Public_Function::DecodePng(png.left(png.size() / 2)).isNull());
        buffer.close();
        png.clear();
        QImage(9000, 1, QImage::Format_ARGB32).save(&buffer, "PNG");
        QVERIFY(!png.isEmpty() && Public_Function::DecodePng(png).isNull());

        m_install.reset();
        const TestInstall own;
        const auto shows = [&](const QByteArray &library, const QByteArray &beside) {
            own.Write(u"Bitmap/1024_CH.DLL"_s, library);
            own.Write(u"Bitmap/1024_CH.PIX"_s, beside);
            QPixmapCache::clear();
            QCoreApplication::processEvents(); // files are kept open for a turn
            return SkinLibrary().Bitmap(u"MAIN_BACK"_s, 1).toImage().convertToFormat(QImage::Format_ARGB32);
        };
        QByteArray reddened = pixels;
        std::fill(reddened.begin() + 64 * 1024, reddened.end(), '\xff');
        QVERIFY(shows(whole, reddened) != decoded[u"MAIN_BACK"_s]);
        QByteArray changed = whole;
        changed[27] = static_cast<char>(changed[27] + 1); // where SQLite counts changes
        for (const auto &[library, beside] : {std::pair(changed, reddened),
                                              {whole, QByteArray("no pictures")},
                                              {whole, reddened.left(200)},
                                              {whole, reddened.left(70000)},
                                              {whole, QByteArray("QVXPIX1\n\xff\xff\xff\xff")}})
            QCOMPARE(shows(library, beside), decoded[u"MAIN_BACK"_s]);
    }

    /// Its image is let go; when it can be seen again, all of it is painted.
    void ACoveredWindowPaintsItselfAgain()
    {
        struct Painted : QWidget
        {
            void paintEvent(QPaintEvent *event) override { region += event->region(); }
            QRegion region;
        };
        Painted window;
        window.resize(300, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        {
            const CoveredWindow active(&window);
            QVERIFY(window.updatesEnabled());
        }
        QWidget other;
        other.show();
        const QList<std::function<void(std::unique_ptr<CoveredWindow> &)>> ends{
            [](auto &cover) { cover.reset(); },
            [&](auto &) {
                QCoreApplication::sendEvent(&window, std::make_unique<QEvent>(QEvent::WindowActivate).get());
            },
            [&](auto &) {
                QExposeEvent expose(window.rect());
                QCoreApplication::sendEvent(window.windowHandle(), &expose);
            },
            [&](auto &) {
                QPaintEvent paint(window.rect());
                QCoreApplication::sendEvent(window.windowHandle(), &paint);
            }};
        for (const auto &end : ends) {
            QTRY_COMPARE(window.backingStore()->size(), window.size());
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            QCoreApplication::processEvents(); // what is still to be painted
            auto cover = std::make_unique<CoveredWindow>(&window);
            window.region = {};
            window.update();
            QCoreApplication::processEvents();
            QVERIFY(window.region.isEmpty());
            QVERIFY(window.backingStore()->size() != window.size());
            end(cover);
            QTRY_COMPARE(window.region, QRegion(window.rect()));
        }
    }

    /// Captions have a full-width colon; for it alone the large Chinese font is not to be read.
    void SignsHaveASmallFont()
    {
        const QFont font = Public_Function::InterfaceFont(9);
        QTextLayout layout(u"：↵"_s, font);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        QVERIFY(!layout.glyphRuns().isEmpty());
        for (const QGlyphRun &run : layout.glyphRuns()) {
            QCOMPARE(run.rawFont().familyName(), u"Quorvex Signs"_s);
            QVERIFY(!run.glyphIndexes().contains(0));
        }
    }

    void ButtonShowsItsStateAndTakesKeys()
    {
        const SkinLibrary library;
        for (const auto &[bitmap, frames] : {std::pair(u"BTN_OK"_s, 4), {u"BTN_DELETE"_s, 5}}) {
            QWidget window;
            SkinButton button(u"Btn"_s, u"Button"_s, &window);
            button.SetButton(bitmap, library, frames);
            const QSize strip = library.BitmapSize(bitmap);
            QCOMPARE(button.size(), QSize(strip.width() / frames, strip.height()));
            window.show();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            window.setFocus();
            QList<QImage> looks;
            const auto looksNew = [&] {
                looks += button.grab().toImage();
                return looks.indexOf(looks.constLast()) == looks.size() - 1;
            };
            QVERIFY(looksNew());
            button.setFocus();
            QVERIFY(looksNew());
            button.setDown(true);
            QVERIFY(looksNew());
            button.setDown(false);

            QSignalSpy clicks(&button, &SkinButton::clicked);
            for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
                QTest::keyClick(&button, key);
            QCOMPARE(clicks.size(), 3);
            button.setEnabled(false);
            QVERIFY(looksNew());
            QTest::keyClick(&button, Qt::Key_Return);
            QTest::mouseClick(&button, Qt::LeftButton);
            QCOMPARE(clicks.size(), 3);
        }
    }

    void DialogButtonsAndTitleBar()
    {
        SomeDialog dialog;
        // Three equal gaps beside and between the buttons.
        const int gap = (420 - 2 * dialog.BtnOk->width()) / 3;
        QCOMPARE(dialog.BtnOk->x(), gap);
        QCOMPARE(dialog.BtnCancel->x(), 2 * gap + dialog.BtnOk->width());
        dialog.SkinOkCancel(dialog.BtnOk, dialog.BtnCancel, 1);
        QCOMPARE(dialog.BtnOk->x(), 420 - 120);

        auto *bar = dialog.findChild<TitleBar *>(u"ImgTitleBar"_s);
        const QPoint before = dialog.pos();
        QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(100, 10));
        QTest::mouseMove(bar, QPoint(130, 30));
        QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(100, 10));
        QTest::mouseMove(bar, QPoint(10, 10));
        QCOMPARE(dialog.pos() - before, QPoint(30, 20));
    }

    void Progress()
    {
        ProgressBox box(nullptr);
        QCOMPARE(box.toolTip(), u"00 %"_s);
        const QImage empty = box.grab().toImage();
        for (const int percent : {40, 100, 0}) {
            Public_Function::ShowProgress(&box, percent);
            QCOMPARE(box.toolTip(), u"%1 %"_s.arg(percent));
            QCOMPARE(box.accessibleDescription(), box.toolTip());
            const QImage bar = box.grab().toImage();
            for (const int x : {50, 62, 135})
                QCOMPARE(bar.pixelColor(x, 8) != empty.pixelColor(x, 8), 100 * x < 140 * percent);
        }
        QCOMPARE(box.grab().toImage(), empty);
    }

private:
    std::optional<SkinnedInstall> m_install;
};

QTEST_MAIN(TestSkin)
#include "tst_Skin.moc"
