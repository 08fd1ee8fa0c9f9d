#include "core/drills/KeypadKeys.h"
#include "platform/SqliteFile.h"
#include "ui/speedtest/TestLayout.h"

#include <QDir>
#include <QImage>
#include <QtTest>

using namespace Qt::Literals::StringLiterals;

class tst_SkinPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryPictureIsThereAtBothScales()
    {
        // The size of a frame where a layout depends on it, the number of frames, and which pictures are so.
        const QList<std::tuple<QSize, int, QByteArrayList>> kinds{
            {{}, 1, {"MAIN_BG", "MAIN_BACK", "DIALOG_TITLE", "EDGE_LEFT", "EDGE_RIGHT", "EDGE_BOTTOM"}},
            {{}, 1, {"EDGE_LEFTDOWN", "EDGE_RIGHTDOWN"}},
            {{}, 4, {"DLG_BTN_CLOSE"}},
            {{220, 44}, 4, {"BTN_YINGWEN", "BTN_CESHI", "BTN_JIAOCHENG", "BTN_YOUXI_MISSILE"}},
            {{220, 44}, 4, {"BTN_YOUXI_RABBIT", "BTN_GERENJILU", "BTN_TUICHUDENGLU"}},
            {{40, 26}, 4, {"BTN_CLOSE", "BTN_MIN", "BTN_HELP"}},
            {{90, 30}, 4, {"BTN_OK", "BTN_CANCEL", "BTN_YES", "BTN_NO", "BTN_LOGIN"}},
            {{90, 30}, 4, {"BTN_ACCEPT", "BTN_AGAIN", "BTN_HOME"}},
            {{90, 30}, 5, {"BTN_DELETE"}},
            {{112, 32}, 4, {"BTN_SELECTLESSON", "BTN_KEYBOARD_NUMBER", "BTN_OPERATION"}},
            {{112, 32}, 4, {"BTN_PAUSE", "BTN_SAVE", "BTN_FINISHTEST", "BTN_FINISH", "BTN_SCORE"}},
            {{122, 32}, 4, {"BTN_KEYBOARD_STAND", "BTN_BACK"}},
            {{22, 22}, 1, {"ICON_TIME", "ICON_SPEED", "ICON_SCHEDULE", "ICON_VERACITY"}},
            {{140, 16}, 1, {"PROGRESSBAR_BLUE", "PROGRESSBAR_GREEN"}},
            {{994, 40}, 1, {"EN_LABEL_KEY_B", "EN_LABEL_KEY_E", "EN_LABEL_WORD", "EN_LABEL_ARTICLE"}},
            {{994, 40}, 1, {"TEST_LABEL_NEIBU", "TEST_LABEL_WAIBU", "TEST_LABEL_TINGDA"}},
            {{994, 664}, 1, {"EN_KEY_BACK_B", "EN_KEY_BACK_E", "EN_WORD_BACK"}},
            {{994, 664}, 1, {"TEST_DANHANG_BACK", "TEST_DUIZHAO_BACK", "TEST_FUGAI_BACK"}},
            {{590, 290}, 1, {"HIGHSCORE_BACK"}},
            {{560, 372}, 1, {"UR_ZONGHE_BACK", "UR_MISTAKEJIANWEI_BACK", "UR_MISTAKEHANZI_BACK"}},
            {{560, 372}, 1, {"UR_ENGLISH_BACK", "UR_pinyin_BACK", "UR_WuBi_BACK", "UR_Exam_BACK"}},
            {{}, 1, {"Ur_histogram"}},
            {{150, 38}, 4, {"BTN_UR_ZONGHE", "BTN_UR_MISTAKEJIANWEI", "BTN_UR_MISTAKEHANZI"}},
            {{150, 38}, 4, {"BTN_UR_ENGLISH", "BTN_UR_PINYIN", "BTN_UR_WUBI", "BTN_UR_EXAM"}},
            {{92, 30}, 4, {"BTN_UR_PAGEUP", "BTN_UR_PAGEDOWN", "BTN_UR_RECORDDEL", "BTN_UR_SELECTALL"}},
            {{92, 30}, 4, {"BTN_UR_SELECTNONE", "BTN_UR_RECORDCLEARALL"}},
            {{}, 4, {"BTN_UR_RETEST", "BTN_UR_RECORDDELSEL", "BTN_UR_CREATELESSON"}},
            {{}, 4, {"BTN_UR_CreateLesson_big"}},
            {{525, 162}, 1, {"HAND_CLEAR", "HAND_ON"}},
            {{64, 60}, 1, {"ICON_KEY_ON", "ICON_KEY_NORMAL"}},
            {{896, 276}, 1, {"KEYBOARD_NORMAL", "KEYBOARD_PROMPT", "KEYBOARD_PRESSED"}},
            {{704, 217}, 1, {"KEYBOARD_NORMAL_SMALL", "KEYBOARD_PROMPT_SMALL", "KEYBOARD_PRESSED_SMALL"}},
            {{240, 276}, 1, {"KEYPAD_NORMAL", "KEYPAD_PROMPT", "KEYPAD_PRESSED"}},
            {{186, 216}, 1, {"KEYPAD_NORMAL_SMALL", "KEYPAD_PROMPT_SMALL", "KEYPAD_PRESSED_SMALL"}},
        };
        for (const auto &[size, frames, names] : kinds) {
            for (const QByteArray &name : names) {
                const QImage single = Load(QString::fromLatin1(name), 1);
                const QImage twice = Load(QString::fromLatin1(name), 2);
                QVERIFY2(!single.isNull(), name);
                QVERIFY2(twice.size() == single.size() * 2, name);
                if (!size.isEmpty()) { // flat edges and tiles may well be equal when enlarged
                    QVERIFY2(single.size() == QSize(size.width() * frames, size.height()), name);
                    QVERIFY2(twice != single.scaled(twice.size()), name);
                }
                QVERIFY2(single.width() % frames == 0, name);
                for (const QImage &strip : {single, twice}) {
                    QList<QImage> seen;
                    for (int frame = 0; frame < frames; ++frame) {
                        const int width = strip.width() / frames;
                        seen += strip.copy(frame * width, 0, width, strip.height());
                        QVERIFY2(seen.indexOf(seen.constLast()) == frame, name);
                    }
                }
            }
        }
        for (const QString &name : {u"INFORMATION"_s, u"STOP"_s, u"ERROR"_s, u"QUESTION"_s}) {
            QCOMPARE(QImage(u":/message/DLG_MESSAGE_%1.png"_s.arg(name)).size(), QSize(40, 40));
            QCOMPARE(QImage(u":/message/DLG_MESSAGE_%1@2x.png"_s.arg(name)).size(), QSize(80, 80));
        }
        QCOMPARE(QImage(u":/message/APP_ICON.png"_s).size(), QSize(64, 64));
        QCOMPARE(QImage(u":/message/APP_ICON@2x.png"_s).size(), QSize(128, 128));
    }

    void EachTabIsDrawnAsItsHotPolygon()
    {
        using Tab = std::tuple<QString, int, int, int>; // lit in, first column, last ones in rows 10 and 25
        const QList<Tab> tabs{{u"EN_LABEL_KEY_B"_s, 0, 380, 395},
                              {u"EN_LABEL_KEY_E"_s, 410, 582, 592},
                              {u"EN_LABEL_WORD"_s, 600, 770, 782},
                              {u"EN_LABEL_ARTICLE"_s, 790, 957, 968}};
        for (int lit = 0; lit < 4; ++lit) {
            const QImage strip = Load(std::get<0>(tabs[lit]), 1);
            const auto face = [&](int tab) { return strip.pixel(std::get<1>(tabs[tab]) + 12, 30); };
            for (int tab = 0; tab < 4; ++tab) {
                const auto &[name, left, upper, lower] = tabs[tab];
                const QRgb other = face(tab == lit ? (lit + 1) % 4 : lit);
                QVERIFY2(face(tab) != other, qPrintable(name));
                for (const auto &[right, y] : {std::pair(upper, 10), {lower, 25}}) {
                    for (const int x : {left + 4, right - 4})
                        QVERIFY2(qAlpha(strip.pixel(x, y)) == 255 && strip.pixel(x, y) != other,
                                 qPrintable(name));
                    QCOMPARE(qAlpha(strip.pixel(right + 4, y)), 0);
                }
            }
        }
    }

    void TestTabsAreDrawnAsTheirHotPolygons()
    {
        std::size_t lit = 0;
        for (const QString &name : {u"TEST_LABEL_NEIBU"_s, u"TEST_LABEL_WAIBU"_s, u"TEST_LABEL_TINGDA"_s}) {
            const QImage strip = Load(name, 1);
            const auto face = [&](std::size_t tab) {
                return strip.pixel(TestLayout::tabs[tab % 3].left + 12, 30);
            };
            QVERIFY2(face(lit) != face(lit + 1) && face(lit + 1) == face(lit + 2), qPrintable(name));
            for (std::size_t tab = 0; tab < TestLayout::tabs.size(); ++tab) {
                const auto &[left, rightTop, rightMiddle, rightBottom] = TestLayout::tabs[tab];
                for (const auto &[right, y] : {std::pair((rightTop + rightMiddle) / 2, 10),
                                               {rightMiddle, 20},
                                               {(rightMiddle + rightBottom) / 2, 30}}) {
                    QVERIFY2(strip.pixel(left + 4, y) == face(tab) && strip.pixel(right - 4, y) == face(tab),
                             qPrintable(name));
                    QCOMPARE(qAlpha(strip.pixel(right + 4, y)), 0);
                }
            }
            ++lit;
        }
    }

    void EachRowOfATestHasItsFrame()
    {
        using TestLayout::DisplayMode;
        for (const auto &[name, mode] : {std::pair(u"TEST_DANHANG_BACK"_s, DisplayMode::OneAboveTheOther),
                                         {u"TEST_DUIZHAO_BACK"_s, DisplayMode::SideBySide},
                                         {u"TEST_FUGAI_BACK"_s, DisplayMode::TypedOver}}) {
            const QImage panel = Load(name, 1);
            const auto isPlain = [&panel](const QRect &area) {
                QImage plain = panel.copy(area);
                plain.fill(panel.pixel(area.topLeft()));
                return panel.copy(area) == plain;
            };
            for (int row = 0; row < TestLayout::RowsPerPage(mode); ++row) {
                for (QRect box : {TestLayout::PromptBox(mode, row), TestLayout::InputBox(mode, row)}) {
                    box.translate(0, -TestLayout::tabHeight);
                    QVERIFY2(isPlain(box), qPrintable(name));
                    for (const QMargins &side :
                         {QMargins(3, 0, 0, 0), {0, 3, 0, 0}, {0, 0, 3, 0}, {0, 0, 0, 3}})
                        QVERIFY2(!isPlain(box + side), qPrintable(name));
                }
            }
        }
    }

    void EachFingerIsLitWithinItsStripsOnly()
    {
        // The columns from which the drills light a finger, on the main keyboard and on the keypad.
        const QList<std::pair<int, int>> strips{{0, 37},   {37, 33},  {73, 42},  {115, 45}, {160, 50},
                                                {365, 45}, {410, 42}, {455, 36}, {488, 37}, {320, 45},
                                                {365, 45}, {410, 42}, {452, 36}, {488, 37}};
        // The strips of both overlap in places: a strip shows its own finger only if what lies between the
        // fingers is the same in both pictures.
        const QList<std::pair<int, int>> between{{34, 3}, {70, 3}, {210, 110}, {452, 3}, {488, 3}, {205, 5}};
        for (const int scale : {1, 2}) {
            const QImage clear = Load(u"HAND_CLEAR"_s, scale);
            const QImage lit = Load(u"HAND_ON"_s, scale);
            for (const auto &[left, width] : between) {
                const QRect gap(left * scale, 0, width * scale, 162 * scale);
                QVERIFY2(clear.copy(gap) == lit.copy(gap), qPrintable(QString::number(left)));
            }
            for (const auto &[left, width] : strips) {
                int columns = 0;
                int accent = 0;
                for (int x = left * scale; x < (left + width) * scale; ++x) {
                    columns += clear.copy(x, 0, 1, lit.height()) != lit.copy(x, 0, 1, lit.height()) ? 1 : 0;
                    for (int y = 0; y < lit.height(); ++y)
                        accent += lit.pixelColor(x, y) == QColor(255, 164, 84) ? 1 : 0;
                }
                QVERIFY2(columns > 20 * scale && accent > 100 * scale, qPrintable(QString::number(left)));
            }
        }
    }

    void KeysCanBeCutOutOfTheKeyboards()
    {
        using Size = AnsiKeyboard::Size;
        for (const auto &[size, suffix] : {std::pair(Size::Large, QString()), {Size::Small, u"_SMALL"_s}}) {
            QList<QRect> keys;
            for (int index = 0; index < AnsiKeyboard::Keys().size(); ++index)
                keys += AnsiKeyboard::KeyRect(index, size);
            QList<QRect> keypad;
            for (int index = 0; index < KeypadKeys::Keys().size(); ++index)
                keypad += KeypadKeys::KeyRect(index, size);
            for (const int scale : {1, 2}) {
                CutOut(u"KEYBOARD_%1"_s + suffix, keys, scale);
                CutOut(u"KEYPAD_%1"_s + suffix, keypad, scale);
            }
        }
    }

private:
    /// Every key differs in the three pictures; what lies between the keys does not.
    void CutOut(const QString &name, const QList<QRect> &keys, int scale) const
    {
        const QImage normal = Load(name.arg(u"NORMAL"_s), scale);
        const QImage prompt = Load(name.arg(u"PROMPT"_s), scale);
        const QImage pressed = Load(name.arg(u"PRESSED"_s), scale);
        QRegion ground(normal.rect());
        for (const QRect &key : keys) {
            const QRect at(key.topLeft() * scale, key.size() * scale);
            const QList<QImage> looks{normal.copy(at), prompt.copy(at), pressed.copy(at)};
            QVERIFY2(looks.lastIndexOf(looks[0]) == 0 && looks.lastIndexOf(looks[1]) == 1, qPrintable(name));
            ground -= at;
        }
        for (const QRect &at : ground)
            QVERIFY(normal.copy(at) == prompt.copy(at) && normal.copy(at) == pressed.copy(at));
    }

    QImage Load(const QString &name, int scale) const
    {
        QImage image;
        m_library.Query("SELECT png FROM bitmap WHERE name = ? AND scale = ?", {name, scale},
                        [&image](const SqliteFile::Row &row) {
                            image.loadFromData(row.Bytes(0), "PNG");
                            return false;
                        });
        return image.convertToFormat(QImage::Format_ARGB32);
    }

    const SqliteFile m_library{
        QDir(qEnvironmentVariable("QUORVEX_INSTALL")).filePath(u"Bitmap/1024_CH.DLL"_s)};
};

QTEST_MAIN(tst_SkinPictures)
#include "tst_SkinPictures.moc"
