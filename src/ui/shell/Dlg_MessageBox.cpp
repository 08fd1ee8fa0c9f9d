#include "ui/shell/Dlg_MessageBox.h"

#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/SkinButton.h"

#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int DialogWidth = 300;
constexpr int LabelWidth = 200;
constexpr int IconLeft = 21;
constexpr int LabelLeft = 75;
constexpr int IconSize = 40;

QString IconFile(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Information:
        return u":/message/DLG_MESSAGE_INFORMATION"_s;
    case MessageIcon::Stop:
        return u":/message/DLG_MESSAGE_STOP"_s;
    case MessageIcon::Error:
        return u":/message/DLG_MESSAGE_ERROR"_s;
    case MessageIcon::Question:
        return u":/message/DLG_MESSAGE_QUESTION"_s;
    case MessageIcon::None:
        break;
    }
    return {};
}

/// What the icon tells those who do not see it.
QString IconName(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Information:
        return Dlg_MessageBox::tr("Information");
    case MessageIcon::Stop:
        return Dlg_MessageBox::tr("Warning");
    case MessageIcon::Error:
        return Dlg_MessageBox::tr("Error");
    case MessageIcon::Question:
        return Dlg_MessageBox::tr("Question");
    case MessageIcon::None:
        break;
    }
    return {};
}

/// Lets a path or another unbroken run of characters wrap: a label breaks lines only where a text allows it.
QString Breakable(QString text)
{
    static const QRegularExpression longRun(u"(\\S{24})(?=\\S)"_s);
    return text.replace(longRun, u"\\1\u200B"_s);
}

} // namespace

Dlg_MessageBox::Dlg_MessageBox(QWidget *owner)
    : SkinnedDialog(owner)
    , ImgMessageInfo(new QLabel(this))
    , LabMessageInfo(new QLabel)
    , m_textArea(new QScrollArea(this))
    , XBtnOK(new SkinButton(u"XBtnOK"_s, tr("&OK"), this))
    , XBtnCancel(new SkinButton(u"XBtnCancel"_s, tr("&No"), this))
{
    setObjectName(u"Dlg_MessageBox"_s);
    ImgMessageInfo->setObjectName(u"ImgMessageInfo"_s);
    LabMessageInfo->setObjectName(u"LabMessageInfo"_s);
    LabMessageInfo->setTextFormat(Qt::PlainText);
    LabMessageInfo->setWordWrap(true);
    LabMessageInfo->setFont(Public_Function::InterfaceFont(9));
    m_textArea->setWidget(LabMessageInfo);
    m_textArea->setFrameShape(QFrame::NoFrame);
    m_textArea->setFocusPolicy(Qt::NoFocus);
    XBtnCancel->hide();
    SetDefaultButton(XBtnOK);
    connect(XBtnOK, &SkinButton::clicked, this, &Dlg_MessageBox::accept);
    connect(XBtnCancel, &SkinButton::clicked, this, &Dlg_MessageBox::reject);
}

void Dlg_MessageBox::CreateMessage(const QString &text, const QString &caption, MessageIcon icon,
                                   MessageButtons buttons)
{
    if (const QString file = IconFile(icon); !file.isEmpty()) {
        // The larger picture serves every ratio above 1; the label scales it into its place.
        QPixmap picture(file + (devicePixelRatioF() > 1.0 ? u"@2x.png"_s : u".png"_s));
        ImgMessageInfo->setScaledContents(true);
        ImgMessageInfo->setPixmap(picture);
        ImgMessageInfo->setAccessibleName(IconName(icon));
    }
    LabMessageInfo->setText(Breakable(text));
    LabMessageInfo->setFixedWidth(LabelWidth);
    const int textHeight = qMax(0, LabMessageInfo->heightForWidth(LabelWidth));
    LabMessageInfo->setFixedHeight(textHeight);

    const int highest = screen()->geometry().height() - 40;
    resize(DialogWidth, textHeight <= 50 ? 160 : qMin(textHeight + 80, highest));

    const SkinLibrary library;
    const int buttonTop = height() - 45;
    if (buttons == MessageButtons::YesNo) {
        XBtnOK->SetButton(u"BTN_YES"_s, library);
        XBtnOK->SetName(tr("&Yes"));
        XBtnOK->move((width() - 2 * XBtnOK->width()) / 3, buttonTop);
        XBtnCancel->SetButton(u"BTN_NO"_s, library);
        XBtnCancel->move(width() - XBtnOK->x() - XBtnCancel->width(), buttonTop);
        XBtnCancel->show();
    } else {
        XBtnOK->SetButton(u"BTN_OK"_s, library);
        XBtnOK->move((width() - XBtnOK->width()) / 2, buttonTop);
    }

    const int bandTop = TitleHeight();
    const int bandHeight = buttonTop - bandTop;
    const int shownHeight = qMin(textHeight, bandHeight);
    ImgMessageInfo->setGeometry(IconLeft, bandTop + (bandHeight - IconSize) / 2, IconSize, IconSize);
    const int scrollBar = shownHeight < textHeight ? DialogWidth - LabelLeft - LabelWidth - 5 : 0;
    m_textArea->setGeometry(LabelLeft, bandTop + (bandHeight - shownHeight) / 2, LabelWidth + scrollBar,
                            shownHeight);
    setAccessibleDescription(text);
    SkinDialog(caption);
    XBtnOK->setFocus();
}

void Dlg_MessageBox::accept()
{
    m_result = true;
    SkinnedDialog::accept();
}
