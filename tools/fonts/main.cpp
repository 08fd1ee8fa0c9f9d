// Cuts the signs that stand between Chinese characters out of a large font, as a font of its own. A window
// with one full-width colon then need not read megabytes of characters.

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <hb-ot.h>
#include <hb-subset.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using Blob = std::unique_ptr<hb_blob_t, decltype(&hb_blob_destroy)>;
using Face = std::unique_ptr<hb_face_t, decltype(&hb_face_destroy)>;

/// First and last characters: the sign for the end of a line, ideographic punctuation, full-width and
/// half-width forms.
constexpr std::array<std::pair<hb_codepoint_t, hb_codepoint_t>, 3> Signs{
    {{0x21B5, 0x21B5}, {0x3000, 0x303F}, {0xFF00, 0xFFEF}}};

void AddShort(std::string &bytes, std::size_t value)
{
    bytes += static_cast<char>(value >> 8 & 0xff);
    bytes += static_cast<char>(value & 0xff);
}

std::u16string Wide(const std::string &ascii)
{
    return {ascii.begin(), ascii.end()};
}

/// What the font says of itself in English, as its copyright and licence.
std::u16string Statement(hb_face_t *font, hb_ot_name_id_t id)
{
    std::array<std::uint16_t, 4096> text{};
    unsigned length = text.size();
    hb_ot_name_get_utf16(font, id, hb_language_from_string("en", -1), &length, text.data());
    return {text.begin(), text.begin() + length};
}

/// A table `name` for Windows and Unicode, in English; `family` is ASCII. The statements are those of `font`.
std::string NameTable(hb_face_t *font, const std::string &family)
{
    std::string postScript;
    for (const char letter : family)
        postScript += letter == ' ' ? "" : std::string(1, letter);
    std::vector<std::pair<hb_ot_name_id_t, std::u16string>> names{
        {HB_OT_NAME_ID_COPYRIGHT, {}},
        {HB_OT_NAME_ID_FONT_FAMILY, Wide(family)},
        {HB_OT_NAME_ID_FONT_SUBFAMILY, u"Regular"},
        {HB_OT_NAME_ID_UNIQUE_ID, Wide(family)},
        {HB_OT_NAME_ID_FULL_NAME, Wide(family)},
        {HB_OT_NAME_ID_POSTSCRIPT_NAME, Wide(postScript)},
        {HB_OT_NAME_ID_LICENSE, {}},
        {HB_OT_NAME_ID_LICENSE_URL, {}}};
    std::string table;
    std::string texts;
    AddShort(table, 0); // format
    AddShort(table, names.size());
    AddShort(table, 6 + 12 * names.size());
    for (auto &[id, text] : names) {
        if (text.empty())
            text = Statement(font, id);
        for (const std::size_t field : {std::size_t(3), std::size_t(1), std::size_t(0x409), std::size_t(id),
                                        2 * text.size(), texts.size()})
            AddShort(table, field);
        for (const char16_t unit : text)
            AddShort(texts, unit);
    }
    return table + texts;
}

/// The signs of `font` under another family's name; empty when it has none or is damaged.
Face CutOut(const char *font, const std::string &family)
{
    const Blob file(hb_blob_create_from_file_or_fail(font), hb_blob_destroy);
    Face none(nullptr, hb_face_destroy);
    if (!file)
        return none;
    const Face whole(hb_face_create(file.get(), 0), hb_face_destroy);
    const std::unique_ptr<hb_subset_input_t, decltype(&hb_subset_input_destroy)> wanted(
        hb_subset_input_create_or_fail(), hb_subset_input_destroy);
    for (const auto &[first, last] : Signs)
        hb_set_add_range(hb_subset_input_unicode_set(wanted.get()), first, last);
    const Face made(hb_subset_or_fail(whole.get(), wanted.get()), hb_face_destroy);
    if (!made || hb_face_get_glyph_count(made.get()) < 2)
        return none;
    // Only a face that was read from bytes can list its tables.
    const Blob written(hb_face_reference_blob(made.get()), hb_blob_destroy);
    const Face signs(hb_face_create(written.get(), 0), hb_face_destroy);

    Face renamed(hb_face_builder_create(), hb_face_destroy);
    const hb_tag_t nameTag = HB_TAG('n', 'a', 'm', 'e');
    std::array<hb_tag_t, 64> tags{};
    unsigned count = tags.size();
    hb_face_get_table_tags(signs.get(), 0, &count, tags.data());
    for (unsigned index = 0; index < count; ++index) {
        const Blob table(hb_face_reference_table(signs.get(), tags[index]), hb_blob_destroy);
        if (tags[index] != nameTag)
            hb_face_builder_add_table(renamed.get(), tags[index], table.get());
    }
    const std::string names = NameTable(whole.get(), family);
    const Blob table(hb_blob_create(names.data(), static_cast<unsigned>(names.size()),
                                    HB_MEMORY_MODE_DUPLICATE, nullptr, nullptr),
                     hb_blob_destroy);
    hb_face_builder_add_table(renamed.get(), nameTag, table.get());
    return renamed;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: quorvex-make-signs FONT FAMILY FILE\n", stderr);
        return 2;
    }
    const Face signs = CutOut(argv[1], argv[2]);
    if (!signs) {
        std::fprintf(stderr, "quorvex-make-signs: no signs in \"%s\"\n", argv[1]);
        return 1;
    }
    const Blob bytes(hb_face_reference_blob(signs.get()), hb_blob_destroy);
    unsigned length = 0;
    const char *data = hb_blob_get_data(bytes.get(), &length);
    // A new file, not the old one with other bytes: who remembers what is in a folder's fonts sees that it
    // has changed.
    const std::string scratch = std::string(argv[3]) + ".tmp";
    std::ofstream file(scratch, std::ios::binary);
    file.write(data, length);
    file.close();
    std::error_code failed;
    if (length > 0 && file)
        std::filesystem::rename(scratch, argv[3], failed);
    if (length == 0 || !file || failed) {
        std::fprintf(stderr, "quorvex-make-signs: cannot write \"%s\"\n", argv[3]);
        return 1;
    }
    return 0;
}
