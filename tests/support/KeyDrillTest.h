#pragma once

#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

/// A junior key drill of the user Ann in an install folder of its own: what a person sees and does there.
class KeyDrillTest : public QObject
{
protected:
    static constexpr QLatin1StringView StandardFolder{"Data/English/T_Character/Standard/"};

    void SetUp()
    {
        m_services.emplace();
        m_install.emplace(QStringLiteral("Ann"));
        m_navigator.emplace();
        m_messages.emplace();
        m_owner = std::make_unique<QWidget>();
        WriteLesson(QStringLiteral("00.txt"), QStringLiteral("Home row\r\nas Df\r\n  1!  \tx\r\n"));
    }
    void TearDown()
    {
        delete m_drill;
        m_owner.reset();
        m_messages.reset();
        m_navigator.reset();
        m_install.reset();
        m_services.reset();
    }

    void WriteLesson(const QString &name, const QString &text)
    {
        m_install->Write(StandardFolder + name, text.toUtf8());
    }
    void Open(int index = 0)
    {
        if (index != 0)
            Store(QStringLiteral("KeyTrain_Index"), QString::number(index));
        m_drill = new frmEn_KeyTrain_Basic(*m_navigator, m_owner.get());
        m_drill->ShowDrill();
        QVERIFY(QTest::qWaitForWindowActive(m_drill));
        QTest::qWait(0);
    }
    static void Store(const QString &key, const QString &value,
                      const QString &section = QStringLiteral("English"))
    {
        SettingFile file(Public_Function::SettingFilePath());
        file.Set(section, key, value);
        QVERIFY(file.Save());
    }
    static QString Stored(const QString &key, const QString &section = QStringLiteral("English"))
    {
        return SettingFile(Public_Function::SettingFilePath()).Text(section, key, QStringLiteral("-"));
    }
    void Type(const QString &text) { QTest::keyClicks(m_drill, text); }
    QLabel *Label(const QString &name) const { return m_drill->findChild<QLabel *>(name); }
    QString Text(const QString &name) const { return Label(name)->text(); }
    QAbstractButton *Button(const QString &name) const { return m_drill->findChild<QAbstractButton *>(name); }
    QWidget *Part(const QString &name) const { return m_drill->findChild<QWidget *>(name); }
    QString Keys() const { return Part(QStringLiteral("PromptKeys"))->accessibleDescription(); }
    QString Cap(int index) const
    {
        const QWidget *cap = Part(QStringLiteral("PromptKey") + QString::number(index));
        return cap->accessibleName() + QStringLiteral(": ") + cap->accessibleDescription();
    }
    QString Keyboard() const { return Part(QStringLiteral("CXKeyBoard1"))->accessibleDescription(); }
    bool IsRunning() const { return m_drill->findChild<QTimer *>(QStringLiteral("Timer1"))->isActive(); }
    void Tick()
    {
        QMetaObject::invokeMethod(m_drill->findChild<QTimer *>(QStringLiteral("Timer1")), "timeout");
    }
    QStringList Status()
    {
        Tick();
        return {Text(QStringLiteral("labTime")), Text(QStringLiteral("labSpeed")),
                Text(QStringLiteral("labVeracity")), Part(QStringLiteral("picProgress"))->toolTip()};
    }
    /// Does something to the next dialog that opens.
    void InDialog(std::function<void(QWidget *)> action)
    {
        QTimer::singleShot(0, this, [action] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (dialog && QTest::qWaitForWindowActive(dialog))
                action(dialog);
            if (QApplication::activeModalWidget() == dialog && dialog)
                qFatal("the dialog stays open");
        });
    }

    std::optional<FakeServices> m_services;
    std::optional<SkinnedInstall> m_install;
    std::optional<FakeNavigator> m_navigator;
    std::optional<FakeAnswers> m_messages;
    std::unique_ptr<QWidget> m_owner;
    QPointer<frmEn_KeyTrain_Basic> m_drill;
};
