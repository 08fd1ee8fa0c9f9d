#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

/// The fields of the program's binary files: little-endian numbers, and texts with a 16-bit length in bytes
/// in front.
namespace BinaryFields {

template <typename Number>
void Append(QByteArray &bytes, Number number)
{
    char raw[sizeof(Number)];
    qToLittleEndian(number, raw);
    bytes.append(raw, sizeof raw);
}

/// In UTF-8; a text too long for its length field is cut between two characters.
void AppendText(QByteArray &bytes, const QString &text);

/// Takes fields off the front of a file; once one is cut off, so is all that follows. What it hands out
/// points into the file's bytes.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    bool IsIntact() const { return m_intact; }
    /// Bytes that were not taken yet.
    qsizetype Rest() const { return m_rest.size(); }

    template <typename Number>
    Number Take()
    {
        const QByteArrayView raw = TakeBytes(sizeof(Number));
        return m_intact ? qFromLittleEndian<Number>(raw.data()) : Number();
    }

    QByteArrayView TakeText() { return TakeBytes(Take<quint16>()); }

private:
    QByteArrayView TakeBytes(qsizetype count)
    {
        m_intact = m_intact && count <= m_rest.size();
        if (!m_intact)
            return {};
        const QByteArrayView taken = m_rest.first(count);
        m_rest = m_rest.sliced(count);
        return taken;
    }

    QByteArrayView m_rest;
    bool m_intact = true;
};

/// Decodes the texts of one file alike. A text of a character or two in GB18030 often passes for UTF-8, so
/// the majority of the texts, each of which was noted first, decides what the file is in.
class TextDecoder
{
public:
    void Note(QByteArrayView text);
    /// Without byte order marks, which nobody sees: a text of marks only is empty.
    QString Decode(QByteArrayView text) const;

private:
    qsizetype m_balance = 0; // texts beyond ASCII that are UTF-8, less those that are not
};

} // namespace BinaryFields
