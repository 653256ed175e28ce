# SPDX-License-Identifier: Apache-2.0
"""The lists of the interface hold what they should, and tell when they are stale."""

import contextlib
import io
import unittest

import public_index
from temporary_tree import TemporaryTreeTest


class TypesOfAHeader(unittest.TestCase):
    def test_classes_structures_and_enumerations_count(self):
        text = """
            class OSTREL_API xWall { public: };
            struct predefinedErr final : xBase<int>, xOther {};
            enum [[nodiscard]] OstrelErrorType : std::int32_t { one };
            enum class Side { left };
        """
        self.assertEqual(
            public_index.types_in(text), ["xWall", "predefinedErr", "OstrelErrorType", "Side"]
        )

    def test_a_namespace_belongs_to_the_name(self):
        text = "namespace ostrel::model { struct Mesh {}; } struct xWall {};"
        self.assertEqual(public_index.types_in(text), ["ostrel::model::Mesh", "xWall"])

    def test_nested_types_declarations_and_parameters_do_not_count(self):
        text = """
            class xWall;
            struct ostrel::FrameAccess;
            enum Kind : int;
            template <class T, class U> struct xList { struct Node {}; enum { size }; };
            class xPile { friend class xWall; void f() { struct Local {}; } };
            inline void f(struct Given* given) { struct Local {}; }
        """
        self.assertEqual(public_index.types_in(text), ["xList", "xPile"])

    def test_comments_texts_and_macros_do_not_count(self):
        text = """
            // class xOld { };
            /* struct xOlder { }; */
            #define X struct xMacro { \\
                int a; };
            inline const char* f() { return "struct xText {"; }
            inline char g() { return '{'; }
            struct xReal {};
        """
        self.assertEqual(public_index.types_in(text), ["xReal"])


class Index(TemporaryTreeTest):
    def test_it_leads_from_the_class_to_header_and_room(self):
        self.header("include/ostrel/wall.h", "model", "class xWall {};")
        self.header("include/ostrel/anchor.h", "anchors", "class xanchor {};")
        self.header("src/model/mesh.h", "model", "struct Mesh {};")
        text = public_index.index_text(self.root)
        self.assertIn("| `xanchor` | `ostrel/anchor.h` | anchors |\n| `xWall` |", text)
        self.assertIn("| `xWall` | `ostrel/wall.h` | model |", text)
        self.assertIn("| `ostrel/wall.h` | model | What it holds |", text)
        self.assertNotIn("Mesh", text)

    def test_the_installed_platform_headers_are_in_it(self):
        self.header("platform/tallow/include/tallow/streams.h", "tallow", "class iInStream {};")
        self.header("platform/ferrule/include/ferrule/domain.h", "ferrule", "class Domain {};")
        text = public_index.index_text(self.root)
        self.assertIn("| `iInStream` | `tallow/streams.h` | tallow |", text)
        self.assertNotIn("Domain", text)

    def test_a_stale_list_is_told_and_left_alone(self):
        file = self.root / "list.txt"
        file.write_text("old\n")
        words = io.StringIO()
        with contextlib.redirect_stdout(words):
            self.assertEqual(public_index.keep(file, "new\n", True, "script/index"), 1)
        self.assertIn("-old\n+new", words.getvalue())
        self.assertIn("run script/index", words.getvalue())
        self.assertEqual(file.read_text(), "old\n")
        self.assertEqual(public_index.keep(file, "new\n", False, "script/index"), 0)
        self.assertEqual(public_index.keep(file, "new\n", True, "script/index"), 0)


class Symbols(unittest.TestCase):
    def test_lasting_functions_data_and_virtual_tables_stay(self):
        listing = (
            "0000000000001234 T xWall::reset()\n"
            "0000000000001300 D vtable for xWall\n"
            "0000000000001310 B xWall::count\n"
            "0000000000001320 R xWall::limits\n"
        )
        self.assertEqual(
            public_index.exported(listing),
            ["vtable for xWall", "xWall::count", "xWall::limits", "xWall::reset()"],
        )

    def test_what_depends_on_the_compiler_goes(self):
        listing = (
            "0000000000001234 W xWall::inline_one() const\n"
            "0000000000001234 V vtable for xPlain\n"
            "0000000000001234 u std::some_guard\n"
            "0000000000001234 D typeinfo for xWall\n"
            "0000000000001234 R typeinfo name for xWall\n"
            "0000000000001234 T _init\n"
            "0000000000001234 T _fini\n"
            "0000000000001234 B __bss_start\n"
            "0000000000001234 D _edata\n"
            "0000000000001234 B _end\n"
            "0000000000001234 T non-virtual thunk to xWall::~xWall()\n"
        )
        self.assertEqual(public_index.exported(listing), [])

    def test_the_forms_of_one_constructor_are_one_line(self):
        line = "0000000000001234 T xWall::xWall()\n"
        self.assertEqual(public_index.exported(line + line), ["xWall::xWall()"])

    def test_names_read_as_in_the_headers(self):
        string = "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
        cases = {
            f"f[abi:cxx11]({string} const&)": "f(std::string const&)",
            f"f(std::vector<{string}, std::allocator<{string} > >&)": "f(std::vector<std::string>&)",
            "f(std::map<int, xRow, std::less<int>, std::allocator<std::pair<int const, xRow> > >)":
                "f(std::map<int, xRow>)",
            "f(std::vector<arma::Col<double>::fixed<2ul>, "
            "std::allocator<arma::Col<double>::fixed<2ul> > > const&)":
                "f(std::vector<arma::Col<double>::fixed<2ul>> const&)",
            "xRow::operator<(xRow const&) const": "xRow::operator<(xRow const&) const",
            "xRow::operator>(xRow const&) const": "xRow::operator>(xRow const&) const",
        }
        for symbol, words in cases.items():
            self.assertEqual(public_index.readable(symbol), words)


if __name__ == "__main__":
    unittest.main()
