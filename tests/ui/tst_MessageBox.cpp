#include "support/SkinnedInstall.h"
#include "ui/shell/ShowMessage.h"
#include "ui/widgets/SkinButton.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString LongText =
    u"A message that is long enough to need more than three lines of the label, which is only two "
    "hundred pixels wide, so that the box must grow with it to show every word of it."_s;

} // namespace

class TestMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install.emplace(); }

    void AnswersLikeThePerson_data()
    {
        QTest::addColumn<MessageButtons>("buttons");
        QTest::addColumn<QString>("act");
        QTest::addColumn<qint16>("answer");
        const qint16 yes = 6;
        const qint16 no = 7;
        QTest::newRow("Enter says yes") << MessageButtons::YesNo << u"Enter"_s << yes;
        QTest::newRow("Escape says no") << MessageButtons::YesNo << u"Escape"_s << no;
        QTest::newRow("click on No") << MessageButtons::YesNo << u"XBtnCancel"_s << no;
        QTest::newRow("click on Yes") << MessageButtons::YesNo << u"XBtnOK"_s << yes;
        QTest::newRow("Tab and Space press No") << MessageButtons::YesNo << u"Tab Space"_s << no;
        QTest::newRow("Tab and Enter press No") << MessageButtons::YesNo << u"Tab Enter"_s << no;
        QTest::newRow("Alt+F4 says no") << MessageButtons::YesNo << u"Alt+F4"_s << no;
        QTest::newRow("OK by Enter") << MessageButtons::Ok << u"Enter"_s << yes;
        QTest::newRow("OK closed by its title bar") << MessageButtons::Ok << u"XBtn_Sys_Close"_s << no;
        QTest::newRow("OK by Escape") << MessageButtons::Ok << u"Escape"_s << no;
    }

    void AnswersLikeThePerson()
    {
        QFETCH(MessageButtons, buttons);
        QFETCH(QString, act);
        bool acted = false;
        QTimer::singleShot(0, this, [&] {
            QWidget *box = QApplication::activeModalWidget();
            QVERIFY(QTest::qWaitForWindowActive(box));
            for (const QString &step : act.split(u' ')) {
                if (auto *button = box->findChild<SkinButton *>(step)) {
                    QVERIFY(button->isVisible());
                    QTest::mouseClick(button, Qt::LeftButton);
                } else if (step == u"Alt+F4"_s) {
                    QTest::keyClick(box, Qt::Key_F4, Qt::AltModifier);
                } else {
                    const auto key = QKeySequence::fromString(step)[0].key();
                    QTest::keyClick(QApplication::focusWidget(), key);
                }
            }
            acted = true;
        });
        const qint16 answer =
            Public_Function::ShowMessage(u"Continue?"_s, u"Confirm"_s, MessageIcon::Question, buttons);
        QVERIFY(acted);
        QTEST(answer, "answer");
    }

    void SizeFollowsTheText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QString();
        QTest::newRow("one line") << u"Finished."_s;
        QTest::newRow("many lines") << LongText;
        QTest::newRow("a path without a break") << u"C:\\"_s + u"folder\\"_s.repeated(40);
        QTest::newRow("taller than the screen") << LongText.repeated(60);
        QTest::newRow("Chinese") << u"请先切换到英文输入法。"_s.repeated(12);
    }

    void SizeFollowsTheText()
    {
        QFETCH(QString, text);
        Dlg_MessageBox box(nullptr);
        box.CreateMessage(text, u"Quorvex"_s, MessageIcon::Error, MessageButtons::YesNo);
        box.show();
        const auto *label = box.findChild<QLabel *>(u"LabMessageInfo"_s);
        const auto *yes = box.findChild<SkinButton *>(u"XBtnOK"_s);
        const auto *no = box.findChild<SkinButton *>(u"XBtnCancel"_s);
        QCOMPARE(box.width(), 300);
        QCOMPARE(label->width(), 200);
        const int asked = label->height() <= 50 ? 160 : label->height() + 80;
        QCOMPARE(box.height(), qMin(asked, box.screen()->geometry().height() - 40));
        QVERIFY(box.screen()->geometry().contains(box.geometry()));
        // Nothing of the text runs out of the label to the right.
        QVERIFY(label->fontMetrics()
                    .boundingRect(QRect(0, 0, 200, 99999), Qt::TextWordWrap, label->text())
                    .width() <= 200);
        // The text keeps clear of the title bar and of the buttons, which stand in mirrored places.
        const QRect shown(label->parentWidget()->mapTo(&box, QPoint()), label->parentWidget()->size());
        QVERIFY(shown.top() >= box.TitleHeight());
        QVERIFY(shown.bottom() < yes->y());
        QCOMPARE(yes->y(), box.height() - 45);
        QCOMPARE(no->y(), yes->y());
        QCOMPARE(box.width() - no->geometry().right() - 1, yes->x());
    }

    void OneButtonIsCentred()
    {
        Dlg_MessageBox box(nullptr);
        box.CreateMessage(u"Done."_s, u"Quorvex"_s, MessageIcon::None, MessageButtons::Ok);
        box.show();
        const auto *ok = box.findChild<SkinButton *>(u"XBtnOK"_s);
        QCOMPARE(ok->x(), (box.width() - ok->width()) / 2);
        QVERIFY(!box.findChild<SkinButton *>(u"XBtnCancel"_s)->isVisible());
        QVERIFY(box.findChild<QLabel *>(u"ImgMessageInfo"_s)->pixmap().isNull());
    }

    void EachKindHasItsIcon()
    {
        QList<QImage> icons;
        for (const auto kind :
             {MessageIcon::Information, MessageIcon::Stop, MessageIcon::Error, MessageIcon::Question}) {
            Dlg_MessageBox box(nullptr);
            box.CreateMessage(u"Text"_s, u"Quorvex"_s, kind, MessageButtons::Ok);
            const QImage icon = box.findChild<QLabel *>(u"ImgMessageInfo"_s)->pixmap().toImage();
            QVERIFY(!icon.isNull());
            QVERIFY(!icons.contains(icon));
            icons.append(icon);
        }
    }

    void WithoutASkinItStillAsks()
    {
        m_install.reset();
        TestInstall bare;
        Dlg_MessageBox box(nullptr);
        box.CreateMessage(u"Continue?"_s, u"Quorvex"_s, MessageIcon::Question, MessageButtons::YesNo);
        box.show();
        QVERIFY(!box.grab().isNull());
        QTest::mouseClick(box.findChild<SkinButton *>(u"XBtnOK"_s), Qt::LeftButton);
        QVERIFY(box.GetReturnValue());
    }

private:
    std::optional<SkinnedInstall> m_install;
};

QTEST_MAIN(TestMessageBox)
#include "tst_MessageBox.moc"
