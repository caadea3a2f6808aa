// What must hold of a document's lines and of every edit, over random files.

#include "tests/core/edit_properties.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace ov
{
namespace
{

using test::AnyEdit;

// Files and edits with few names, so that they meet.
class RandomEdits
{
  public:
    explicit RandomEdits(unsigned seed) : m_random(seed) {}

    std::string File()
    {
        const int ends = Number(4); // LF, CR LF, both, CR
        std::string bytes = Chance(8) ? "\xEF\xBB\xBF" : "";
        if (Chance(20))
            bytes += "# header" + End(ends) + "#" + End(ends) + End(ends);
        for (int count = Number(16); count > 0; --count)
            bytes += Line(ends) + End(ends);
        if (Chance(25) && bytes.ends_with('\n'))
            bytes.resize(bytes.size() - (bytes.ends_with("\r\n") ? 2 : 1));
        return bytes;
    }

    AnyEdit Edit()
    {
        AnyEdit edit;
        edit.kind = static_cast<AnyEdit::Kind>(Number(3));
        edit.name = Decoded(Name());
        if (edit.kind == AnyEdit::Kind::Set)
            edit.value = Decoded(Value());
        for (std::vector<Text>* entries : {&edit.change.remove, &edit.change.prepend, &edit.change.append}) {
            for (int count = edit.kind == AnyEdit::Kind::List ? Number(3) : 0; count > 0; --count)
                entries->push_back(Decoded(Entry()));
        }
        return edit;
    }

    std::optional<Charset> Encoding()
    {
        const std::optional<Charset> encodings[] = {{}, {}, {}, Charset::Utf8, Charset::Windows1252};
        return encodings[Number(5)];
    }

    bool Chance(int percent) { return Number(100) < percent; }

  private:
    // From 0 to the one before `count`.
    int Number(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }

    std::string OneOf(std::initializer_list<const char*> texts)
    {
        return texts.begin()[Number(static_cast<int>(texts.size()))];
    }

    static Text Decoded(const std::string& bytes)
    {
        Text text;
        LocaleDecoder(DetectCharset(bytes)).Append(bytes, text);
        return text;
    }

    std::string End(int ends)
    {
        if (ends == 2)
            return Chance(50) ? "\r\n" : "\n";
        return ends == 3 && Chance(80) ? "\r" : ends == 1 ? "\r\n" : "\n";
    }

    std::string Name()
    {
        return OneOf({"A", "A", "A", "B", "B", "K_FLAG", "K_TEXT", "K_TEXT", "K_PATH", "K_COMMAS", "\xC4",
                      "\xC3\x84",
                      "\xEF\xBB\xBF"
                      "A"});
    }

    std::string Entry()
    {
        if (Chance(20))
            return OneOf({"\"q\"", "x\"y", "z\"", "p\"a;b\"", "\"u,v\" w", "\"s;t\"", "\"\"", "a\"\"b", "b#c",
                          "b\nc", "d\r\n"});
        return OneOf({"a", "a", "b", "c", "d", " a ", "b c", "x,y", "a;b", "", "\xE4", "$(X)/y"});
    }

    std::string Value()
    {
        if (Chance(40))
            return Entry() + (Chance(20) ? "," : ";") + Entry() + OneOf({"", "", ";", ";c"});
        const std::string text = OneOf({"", "1", "-2.5", "x", "x y", "a # b", "#a", "a\"b", " x", "x\t",
                                        "\xE4", "\xC3\xA4", "C:\\x y", "\"", "=", "\r", "\v"});
        return Chance(5) ? text + '\0' + text : text;
    }

    std::string Line(int ends)
    {
        switch (Number(12)) {
        case 0:
            return OneOf({"# c", "#", "  # indented", "#A = 1", "\t", "", "", "\x1A"});
        case 1:
            return OneOf(
                {"%include x.cfg", "%if X", " %ifdef Y", "% IFNDEF Z", "%else", "%endif", "%Endif X", "%"});
        case 2:
            return OneOf({"A=1", "lonely", "two words", "<<<<<<< ours", "======="});
        case 3:
            return Block(Name(), ends);
        default:
            return Assignment();
        }
    }

    // A comment as the dialog writes it, or nearly.
    std::string Block(const std::string& name, int ends)
    {
        std::string block = Chance(80) ? "" : "#";
        for (const std::string& line : {std::string("#"), "# This is " + name + ".", std::string("#")})
            block += End(ends) + line;
        return block + End(ends) + (Chance(80) ? name + " = 1" : Assignment());
    }

    std::string Assignment()
    {
        const std::string operation =
            Chance(85) ? OneOf({" = ", " = ", " = ", " > ", " > ", " < "})
                       : OneOf({" + ", " : ", " =", " =1 ", "\t=\t", "  =  ", " := ", " >> ", " x=y "});
        const std::string quote = Chance(30) ? "\"" : "";
        return OneOf({"", "", "", "  ", "\t"}) + Name() + operation + quote + Value() + quote +
               OneOf({"", "", "", " ", "\r"});
    }

    std::mt19937 m_random;
};

std::string Shown(const std::string& file, const AnyEdit& edit)
{
    std::string text = testing::PrintToString(file) + "\nedit " +
                       std::to_string(static_cast<int>(edit.kind)) + " of " +
                       testing::PrintToString(Utf8FromText(edit.name)) + " value " +
                       testing::PrintToString(Utf8FromText(edit.value));
    for (const std::vector<Text>* entries :
         {&edit.change.remove, &edit.change.prepend, &edit.change.append}) {
        text += " |";
        for (const Text& entry : *entries)
            text += " " + testing::PrintToString(Utf8FromText(entry));
    }
    return text;
}

TEST(EditProperties, HoldForRandomFiles)
{
    RandomEdits random(20'261'122);
    int changed = 0;
    int refused = 0;
    for (int round = 0; round < 500; ++round) {
        const std::string bytes = random.File();
        ASSERT_EQ(test::FaultOfDocument(bytes), "") << testing::PrintToString(bytes);
        for (int i = 0; i < 6; ++i) {
            const EditedFile file{bytes, random.Encoding()};
            const AnyEdit edit = random.Edit();
            ASSERT_EQ(test::FaultOfEdit(file, edit), "") << Shown(bytes, edit);
            const EditResult result = test::Apply(file, edit);
            refused += result.refused.empty() ? 0 : 1;
            changed += result.refused.empty() && result.bytes != bytes ? 1 : 0;
        }
    }
    // The random edits are neither all refused nor all done already.
    EXPECT_GT(changed, 700);
    EXPECT_GT(refused, 200);
}

TEST(EditProperties, HoldForLinesOfAMegabyte)
{
    constexpr std::size_t kMegabyte = 1 << 20;
    std::string entries = "a";
    for (int i = 0; entries.size() < kMegabyte; ++i)
        entries += ";a rather long entry with the number " + std::to_string(i);
    const AnyEdit set{AnyEdit::Kind::Set, u"B", u"2", {}};
    const AnyEdit unset{AnyEdit::Kind::Unset, u"A", {}, {}};
    const AnyEdit list{AnyEdit::Kind::List, u"A", {}, {{u"a"}, {u"b"}, {u"c"}}};
    for (const auto& [value, edit] :
         {std::pair(std::string(kMegabyte, 'x'), set),
          std::pair(std::string(kMegabyte, 'y') + std::string(kMegabyte, '\0'), unset),
          std::pair(entries, list)}) {
        const std::string bytes = "B = 1\nA = " + value + "\r\nB > 1";
        EXPECT_EQ(test::FaultOfDocument(bytes), "");
        EXPECT_EQ(test::FaultOfEdit({bytes, {}}, edit), "") << static_cast<int>(edit.kind);
    }
}

} // namespace
} // namespace ov
