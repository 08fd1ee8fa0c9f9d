#pragma once

#include "support/WindowTest.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"

/// A drill, the junior key drill if not another one.
class KeyDrillTest : public WindowTest
{
protected:
    static constexpr QLatin1StringView StandardFolder{"Data/English/T_Character/Standard/"};

    void SetUp()
    {
        WindowTest::SetUp();
        WriteLesson("00.txt", QStringLiteral("Home row\r\nas Df\r\n  1!  \tx\r\n"));
    }
    void WriteLesson(const char *name, const QString &text)
    {
        m_install->Write(StandardFolder + QLatin1StringView(name), text.toUtf8());
    }
    template <typename Drill = frmEn_KeyTrain_Basic>
    void Open(const QString &index = QString())
    {
        if (!index.isNull())
            Store(QStringLiteral("KeyTrain_Index"), index);
        OpenBy<Drill>(&Drill::ShowDrill);
    }
    void Leave()
    {
        m_window->close();
        QTRY_VERIFY(m_window.isNull());
    }
    /// What is stored of the keys that were missed, in hexadecimal digits.
    QByteArray Mistakes() const { return m_install->Read(QStringLiteral("Users/Ann/MistakeEN.Dat")).toHex(); }

    QString State(const char *name) const { return Part(name)->accessibleDescription(); }
    QString Keys() const { return State("PromptKeys"); }
    QString Keyboard() const
    {
        QCoreApplication::processEvents();
        return State("CXKeyBoard1");
    }
    QString Cap(int index) const
    {
        const QWidget *cap = Part(QStringLiteral("PromptKey%1").arg(index));
        return cap->accessibleName() + QStringLiteral(": ") + cap->accessibleDescription();
    }
};
