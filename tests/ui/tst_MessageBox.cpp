#include "support/SkinnedInstall.h"
#include "ui/shell/ShowMessage.h"
#include "ui/widgets/SkinButton.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A box that was shown, and its parts.
struct Box : Dlg_MessageBox
{
    Box(const QString &text, MessageIcon kind, MessageButtons buttons)
        : Dlg_MessageBox(nullptr)
    {
        CreateMessage(text, u"Quorvex"_s, kind, buttons);
        show();
    }
    QLabel *icon = findChild<QLabel *>(u"ImgMessageInfo"_s);
    QLabel *label = findChild<QLabel *>(u"LabMessageInfo"_s);
    SkinButton *yes = findChild<SkinButton *>(u"XBtnOK"_s);
    SkinButton *no = findChild<SkinButton *>(u"XBtnCancel"_s);
};

} // namespace

class TestMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnswersLikeThePerson()
    {
        using Row = std::tuple<MessageButtons, QString, qint16>;
        constexpr auto yesNo = MessageButtons::YesNo;
        constexpr auto ok = MessageButtons::Ok;
        for (const auto &[buttons, act, expected] :
             {Row{yesNo, u"Enter"_s, 6}, Row{yesNo, u"Escape"_s, 7}, Row{yesNo, u"XBtnCancel"_s, 7},
              Row{yesNo, u"XBtnOK"_s, 6}, Row{yesNo, u"Tab Space"_s, 7}, Row{yesNo, u"Tab Enter"_s, 7},
              Row{yesNo, u"Alt+F4"_s, 7}, Row{ok, u"Return"_s, 6}, Row{ok, u"XBtn_Sys_Close"_s, 7}}) {
            bool acted = false;
            QTimer::singleShot(0, this, [&acted, steps = act.split(u' ')] {
                QWidget *box = QApplication::activeModalWidget();
                QVERIFY(QTest::qWaitForWindowActive(box));
                for (const QString &step : steps) {
                    const auto key = QKeySequence::fromString(step)[0];
                    if (auto *button = box->findChild<SkinButton *>(step))
                        QTest::mouseClick(button, Qt::LeftButton);
                    else
                        QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
                }
                acted = true;
            });
            QCOMPARE(Public_Function::ShowMessage(act, u"Confirm"_s, MessageIcon::Question, buttons),
                     expected);
            QVERIFY(acted);
        }
    }

    void LiesOverTheWindowInFront()
    {
        QWidget menu;
        QDialog drill(&menu);
        menu.show();
        for (QWidget *active : {&menu, static_cast<QWidget *>(nullptr)}) {
            for (const bool covered : {false, true}) {
                drill.setVisible(covered);
                QApplication::setActiveWindow(active);
                QWidget *owner = nullptr;
                QTimer::singleShot(0, this, [&owner] {
                    owner = QApplication::activeModalWidget()->parentWidget();
                    QApplication::activeModalWidget()->close();
                });
                Public_Function::ShowMessage(u"Done."_s, u"Quorvex"_s, MessageIcon::None, MessageButtons::Ok);
                QCOMPARE(owner, covered ? static_cast<QWidget *>(&drill) : &menu);
            }
        }
    }

    void SizeFollowsTheText()
    {
        const QString sentence =
            u"A message that is long enough to need more than three lines of the label. "_s;
        for (const QString &text :
             {QString(), u"Finished."_s, sentence.repeated(3), sentence.repeated(150),
              u"C:\\"_s + u"folder\\"_s.repeated(40), u"请先切换到英文输入法。"_s.repeated(12)}) {
            const Box box(text, MessageIcon::Error, MessageButtons::YesNo);
            const QRect screen = box.screen()->geometry();
            QCOMPARE(box.width(), 300);
            QCOMPARE(box.label->width(), 200);
            const int asked = box.label->height() <= 50 ? 160 : box.label->height() + 80;
            QCOMPARE(box.height(), qMin(asked, screen.height() - 40));
            QVERIFY(screen.contains(box.geometry()));
            // Nothing of the text runs out of the label to the right.
            const QRect words = box.label->fontMetrics().boundingRect(QRect(0, 0, 200, 99999),
                                                                      Qt::TextWordWrap, box.label->text());
            QVERIFY(words.width() <= 200);
            // The text keeps clear of the title bar and of the buttons, which stand in mirrored places.
            const QWidget *view = box.label->parentWidget();
            QVERIFY(view->mapTo(&box, QPoint()).y() >= box.TitleHeight());
            QVERIFY(view->mapTo(&box, view->rect().bottomLeft()).y() < box.yes->y());
            QCOMPARE(box.yes->y(), box.height() - 45);
            QCOMPARE(box.no->y(), box.yes->y());
            QCOMPARE(box.width() - box.no->geometry().right() - 1, box.yes->x());
        }
    }

    void OneButtonIsCentredAndEachKindHasItsIcon()
    {
        QList<QImage> icons;
        for (const auto kind : {MessageIcon::None, MessageIcon::Information, MessageIcon::Stop,
                                MessageIcon::Error, MessageIcon::Question}) {
            const Box box(u"Done."_s, kind, MessageButtons::Ok);
            QCOMPARE(box.yes->x(), (box.width() - box.yes->width()) / 2);
            QVERIFY(!box.no->isVisible());
            const QImage icon = box.icon->pixmap().toImage();
            QCOMPARE(icon.isNull(), kind == MessageIcon::None);
            QVERIFY(!icons.contains(icon));
            icons += icon;
        }
    }

private:
    SkinnedInstall m_install;
};

QTEST_MAIN(TestMessageBox)
#include "tst_MessageBox.moc"
