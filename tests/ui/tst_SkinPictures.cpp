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
        const QByteArray table = R"(
0 0 1 MAIN_BG MAIN_BACK DIALOG_TITLE EDGE_LEFT EDGE_RIGHT EDGE_BOTTOM EDGE_LEFTDOWN EDGE_RIGHTDOWN
0 0 1 Ur_histogram
0 0 4 DLG_BTN_CLOSE BTN_UR_RETEST BTN_UR_RECORDDELSEL BTN_UR_CREATELESSON BTN_UR_CreateLesson_big
220 44 4 BTN_YINGWEN BTN_CESHI BTN_JIAOCHENG BTN_YOUXI_MISSILE BTN_YOUXI_RABBIT BTN_GERENJILU
220 44 4 BTN_TUICHUDENGLU
40 26 4 BTN_CLOSE BTN_MIN BTN_HELP
90 30 4 BTN_OK BTN_CANCEL BTN_YES BTN_NO BTN_LOGIN BTN_ACCEPT BTN_AGAIN BTN_HOME
90 30 5 BTN_DELETE
112 32 4 BTN_SELECTLESSON BTN_KEYBOARD_NUMBER BTN_OPERATION BTN_PAUSE BTN_SAVE BTN_FINISHTEST BTN_FINISH
112 32 4 BTN_SCORE
122 32 4 BTN_KEYBOARD_STAND BTN_BACK
22 22 1 ICON_TIME ICON_SPEED ICON_SCHEDULE ICON_VERACITY
140 16 1 PROGRESSBAR_BLUE PROGRESSBAR_GREEN
994 40 1 EN_LABEL_KEY_B EN_LABEL_KEY_E EN_LABEL_WORD EN_LABEL_ARTICLE TEST_LABEL_NEIBU TEST_LABEL_WAIBU
994 40 1 TEST_LABEL_TINGDA
994 664 1 EN_KEY_BACK_B EN_KEY_BACK_E EN_WORD_BACK TEST_DANHANG_BACK TEST_DUIZHAO_BACK TEST_FUGAI_BACK
590 290 1 HIGHSCORE_BACK
560 372 1 UR_ZONGHE_BACK UR_MISTAKEJIANWEI_BACK UR_MISTAKEHANZI_BACK UR_ENGLISH_BACK UR_pinyin_BACK
560 372 1 UR_WuBi_BACK UR_Exam_BACK
150 38 4 BTN_UR_ZONGHE BTN_UR_MISTAKEJIANWEI BTN_UR_MISTAKEHANZI BTN_UR_ENGLISH BTN_UR_PINYIN BTN_UR_WUBI
150 38 4 BTN_UR_EXAM
92 30 4 BTN_UR_PAGEUP BTN_UR_PAGEDOWN BTN_UR_RECORDDEL BTN_UR_SELECTALL BTN_UR_SELECTNONE
92 30 4 BTN_UR_RECORDCLEARALL
525 162 1 HAND_CLEAR HAND_ON
64 60 1 ICON_KEY_ON ICON_KEY_NORMAL
896 276 1 KEYBOARD_NORMAL KEYBOARD_PROMPT KEYBOARD_PRESSED
704 217 1 KEYBOARD_NORMAL_SMALL KEYBOARD_PROMPT_SMALL KEYBOARD_PRESSED_SMALL
240 276 1 KEYPAD_NORMAL KEYPAD_PROMPT KEYPAD_PRESSED
186 216 1 KEYPAD_NORMAL_SMALL KEYPAD_PROMPT_SMALL KEYPAD_PRESSED_SMALL)";
        for (const QByteArray &row : table.trimmed().split('\n')) {
            const QList<QByteArray> parts = row.split(' ');
            CheckPictures({parts[0].toInt(), parts[1].toInt()}, parts[2].toInt(), parts.sliced(3));
        }
    }

    void TabsAreDrawnAsTheirHotPolygons()
    {
        CheckTabs({u"EN_LABEL_KEY_B"_s, u"EN_LABEL_KEY_E"_s, u"EN_LABEL_WORD"_s, u"EN_LABEL_ARTICLE"_s},
                  {{0, {{380, 10}, {395, 25}}},
                   {410, {{582, 10}, {592, 25}}},
                   {600, {{770, 10}, {782, 25}}},
                   {790, {{957, 10}, {968, 25}}}});
        QList<Tab> tabs;
        for (const auto &[left, top, middle, bottom] : TestLayout::tabs)
            tabs += {left, {{(top + middle) / 2, 10}, {middle, 20}, {(middle + bottom) / 2, 30}}};
        CheckTabs({u"TEST_LABEL_NEIBU"_s, u"TEST_LABEL_WAIBU"_s, u"TEST_LABEL_TINGDA"_s}, tabs);
    }

    void EachFingerIsLitInItsStrip()
    {
        // The columns from which the drills light a finger, on the main keyboard and on the keypad.
        const QList<std::pair<int, int>> strips{{0, 37},   {37, 33},  {73, 42},  {115, 45}, {160, 50},
                                                {365, 45}, {410, 42}, {455, 36}, {488, 37}, {320, 45},
                                                {365, 45}, {410, 42}, {452, 36}, {488, 37}};
        for (const int scale : {1, 2}) {
            const QImage clear = Load(u"HAND_CLEAR"_s, scale);
            const QImage lit = Load(u"HAND_ON"_s, scale);
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
    void CheckPictures(const QSize &size, int frames, const QList<QByteArray> &names) const
    {
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

    struct Tab
    {
        int left;
        QList<QPoint> right; ///< points of its right side
    };
    /// In each strip its own tab is lit, and each tab ends where clicks do.
    void CheckTabs(const QStringList &strips, const QList<Tab> &tabs) const
    {
        for (qsizetype lit = 0; lit < strips.size(); ++lit) {
            const QImage strip = Load(strips[lit], 1);
            const auto face = [&](qsizetype tab) { return strip.pixel(tabs[tab].left + 12, 30); };
            for (qsizetype tab = 0; tab < tabs.size(); ++tab) {
                const QRgb other = face(tab == lit ? (lit + 1) % tabs.size() : lit);
                QVERIFY2(face(tab) != other, qPrintable(strips[lit]));
                for (const QPoint &side : tabs[tab].right) {
                    for (const int x : {tabs[tab].left + 4, side.x() - 4})
                        QVERIFY2(qAlpha(strip.pixel(x, side.y())) == 255 && strip.pixel(x, side.y()) != other,
                                 qPrintable(strips[lit]));
                    QCOMPARE(qAlpha(strip.pixel(side.x() + 4, side.y())), 0);
                }
            }
        }
    }

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
