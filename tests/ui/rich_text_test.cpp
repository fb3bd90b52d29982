// The text edit of documents: what only a screen can do to a text.
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QVBoxLayout>
#include <memory>
#include <string>
#include <vector>

#include "text_screen.h"
#include "ui/utf8.h"

namespace support {
namespace {

// A change that goes past the port, as a program or the toolkit itself makes it.
void insertDirectly(ui::RichTextEdit& edit, int position, const QString& text) {
  QTextCursor cursor(edit.document());
  cursor.setPosition(position);
  cursor.insertText(text);
}

TEST(RichTextEdit, composesInTheUndoStepThatBroughtTheText) {
  struct Row {
    std::string before;
    base::TextSelection place;
    QString input;  // a lone mark is typed, \b erases, more is committed by an input method
    std::string after;
    std::int64_t caret;
  };
  const std::vector<Row> rows = {
      {"xay", {2, 0}, "\u0308", "xäy", 2},   {"xay", {2, 1}, "\u0308", "xä", 2},
      {"xay", {2, 0}, "\u0308b", "xäby", 3}, {"q\u0308", {0, 1}, "A\u030A", "Å\u0308", 1},
      {"aq\u0308", {2, 0}, "\b", "ä", 1},    {"a\nq\u0308", {1, 3}, "\b", "ä", 1},
  };
  const auto change = [](ui::RichTextEdit& edit, const Row& row) {
    if (row.input == "\u0308") return sendMark(edit);
    if (row.input == "\b") return QTest::keyClick(&edit, Qt::Key_Backspace);
    QInputMethodEvent event;
    event.setCommitString(row.input);
    QApplication::sendEvent(&edit, &event);
  };
  for (const Row& row : rows) {
    UndoScreen screen;
    screen.text.setPlainText(row.before);
    const std::string before = screen.text.plainText();
    screen.text.select(row.place);
    const QSignalSpy edited(&screen.edit, &ui::RichTextEdit::edited);
    const auto seesComposed = [&] { EXPECT_EQ(screen.text.plainText(), row.after); };
    const auto watching = QObject::connect(&screen.edit, &ui::RichTextEdit::caretMoved, seesComposed);
    change(screen.edit, row);
    QObject::disconnect(watching);
    EXPECT_EQ(screen.text.plainText(), row.after);
    EXPECT_EQ(screen.text.selection(), (base::TextSelection{row.caret, 0})) << row.after;
    EXPECT_EQ(edited.count(), 1) << row.after;
    screen.undo.undo();
    EXPECT_EQ(screen.text.plainText(), before);
    screen.undo.redo();
    EXPECT_EQ(screen.text.plainText(), row.after);
  }
}

TEST(RichTextEdit, composesWhatAProgramWritesAndLeavesTheCaretAlone) {
  struct Row {
    std::int64_t caret;
    int place;
    QString written;
    std::string after;
    std::int64_t caretAfter;
  };
  const std::vector<Row> rows = {{0, 1, "A\u030Abca\u0308de", "aÅbcädebc", 0},
                                 {3, 1, "A\u030Abca\u0308de", "aÅbcädebc", 9},
                                 {0, 1, "\u0308", "äbc", 0},
                                 {1, 2, "\u0308\u0323", "aḅ\u0308c", 1}};
  for (const Row& row : rows) {
    UndoScreen screen;
    screen.text.setPlainText("abc");
    screen.text.select({row.caret, 0});
    insertDirectly(screen.edit, row.place, row.written);
    EXPECT_EQ(screen.text.selection(), (base::TextSelection{row.caretAfter, 0})) << row.after;
    EXPECT_EQ(screen.text.plainText(), row.after);
    screen.undo.undo();
    EXPECT_EQ(screen.text.plainText(), "abc");
  }
}

TEST(RichTextEdit, pastesPlainTextInTheFormatOfTheCaret) {
  struct Row {
    QString text;
    QString html;
    std::string expected;
  };
  const QString noCharacters = QStringLiteral("1%1%2z%3%4").arg(QChar(0), QChar(0xD800), QChar(0xDC00), QChar(0xFFFC));
  const std::vector<Row> rows = {
      {"1\u00A02\r\n3", "", "1\u00A02\r\n3"},
      {"", "<b>1&nbsp;2</b><br>3<p>4 <img src='x.png'>5</p>", "1\u00A02\r\n3\r\n4 5"},
      {"no", "<h1>yes</h1>", "yes"},
      {"", "<table><tr><td>1</td><td>2</td></tr><tr><td>3</td><td><p>4</p>5</td></tr></table>", "1\t2\r\n3\t4\r\n5"},
      {"", "a<table><tr><td>1</td></tr></table>b", "a\r\n1\r\nb"},
      {"a\u0308", "", "ä"},
      {noCharacters, "", "1z"},
      {"", "", ""},
  };
  for (const Row& row : rows) {
    UndoScreen screen;
    const base::CharFormat format{.family = "Courier New", .points = 30};
    screen.text.setFormat(format);
    auto* const source = new QMimeData;
    if (!row.text.isEmpty()) source->setText(row.text);
    if (!row.html.isEmpty()) source->setHtml(row.html);
    if (row.expected.empty()) source->setImageData(QImage(2, 2, QImage::Format_RGB32));
    QApplication::clipboard()->setMimeData(source);
    screen.edit.paste();
    EXPECT_EQ(screen.text.plainText(), row.expected) << row.expected;
    EXPECT_EQ(screen.text.format(), format) << row.expected;
    if (row.expected.empty()) continue;
    screen.undo.undo();
    EXPECT_EQ(screen.text.plainText(), "") << row.expected;
  }
}

// \b erases, # forwards, < goes to the start of the line, ^ selects all, v pastes.
void typeKeys(ui::RichTextEdit& edit, const QString& keys) {
  for (const QChar key : keys) {
    if (key == '\n') {
      QTest::keyClick(&edit, Qt::Key_Return);
    } else if (key == '\b') {
      QTest::keyClick(&edit, Qt::Key_Backspace);
    } else if (key == '<') {
      QTest::keyClick(&edit, Qt::Key_Home);
    } else if (key == '#') {
      QTest::keyClick(&edit, Qt::Key_Delete);
    } else if (key == '^') {
      QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    } else if (key == 'v') {
      QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    } else {
      QTest::keyClick(&edit, key.toLatin1());
    }
  }
}

TEST(RichTextEdit, anEmptiedLineGoesOnInTheFormatOfItsLettersNotOfItsEnd) {
  Screen screen;
  typeKeys(screen.edit, "x\ny");
  screen.text.select({0, 1});
  screen.text.changeFormat({.bold = true});
  typeKeys(screen.edit, "\bD");
  screen.text.select({0, 1});
  EXPECT_TRUE(screen.text.format().bold);
}

TEST(RichTextEdit, linesKeepTheFormatThatWasTypedBefore) {
  struct Row {
    QString keys;
    std::string text;
  };
  const std::vector<Row> rows = {
      {"\b\nA", "\r\nA"},        {"\n\nDEF", "x\r\n\r\nDEF"}, {"^\bD", "D"},
      {"^\b\n\nD", "\r\n\r\nD"}, {"\nB\bC<\b", "xC"},         {"\nB<\nC", "x\r\n\r\nCB"},
      {"\n\n\b\bA", "xA"},       {"^v", "1\r\n\r\n2\r\n"},    {"\nv\b3", "x\r\n1\r\n\r\n23"},
      {"\n^\n", "\r\n"},         {"<\n\n", "\r\n\r\nx"},      {"\n<v", "x\r\n1\r\n\r\n2\r\n"},
  };
  const base::CharFormat start{.family = "Arial", .points = 24};
  const base::CharFormat chosen{.family = "Courier New", .points = 30, .bold = true};
  for (const Row& row : rows) {
    UndoScreen screen;
    QApplication::clipboard()->setText("1\n\n2\n");
    screen.text.setFormat(start);
    typeKeys(screen.edit, "x");
    screen.edit.selectAll();
    screen.text.setFormat(chosen);
    screen.edit.moveCursor(QTextCursor::End);
    typeKeys(screen.edit, row.keys);
    EXPECT_EQ(screen.text.plainText(), row.text);
    EXPECT_EQ(screen.text.document().formats, std::vector{chosen}) << row.text;
    while (screen.undo.canUndo()) screen.undo.undo();
    EXPECT_EQ(screen.text.plainText(), "") << row.text;
  }
}

TEST(RichTextEdit, aFormatChosenInAnEmptyLineStaysThere) {
  Screen screen;
  typeKeys(screen.edit, "A\n\nB");
  screen.text.select({3, 0});
  screen.text.changeFormat({.points = 99});
  screen.text.select({0, 0});
  screen.text.select({3, 0});
  EXPECT_EQ(screen.text.format().points, 99);
  typeKeys(screen.edit, "C");
  EXPECT_EQ(screen.text.format().points, 99);
  screen.text.select({6, 1});
  EXPECT_EQ(screen.text.format().points, 8);
}

TEST(RichTextEdit, aStepIsWhatAPersonWouldCallOne) {
  struct Row {
    QString keys;
    std::vector<std::string> undone;  // from what was written to the start
  };
  const std::vector<Row> rows = {
      {"Auto Haus", {"xAuto Haus", "xAuto", "x"}},
      {"A  B\tC", {"xA  B\tC", "xA  B", "xA", "x"}},
      {"A\n\nB", {"xA\r\n\r\nB", "xA\r\n", "xA", "x"}},
      {"AB<CD", {"CDxAB", "xAB", "x"}},
      {"AB CD\b\b\b\b\b", {"x", "xAB", "xAB CD", "xAB", "x"}},
      {"A\nB\b\bC", {"xAC", "xA", "xA\r\nB", "xA", "x"}},
      {"A^B C", {"B C", "B", "xA", "x"}},
      {"A<##", {"", "xA", "x"}},
      {"AvC", {"xA1\r\n\r\n2\r\nC", "xA1\r\n\r\n2\r\n", "xA", "x"}},
  };
  for (const Row& row : rows) {
    UndoScreen screen;
    QApplication::clipboard()->setText("1\n\n2\n");
    screen.text.setPlainText("x");
    screen.edit.moveCursor(QTextCursor::End);
    typeKeys(screen.edit, row.keys);
    std::vector<std::string> undone = {screen.text.plainText()};
    for (; screen.undo.canUndo() && undone.size() < 9; undone.push_back(screen.text.plainText())) screen.undo.undo();
    EXPECT_EQ(undone, row.undone);
    while (screen.undo.canRedo()) screen.undo.redo();
    EXPECT_EQ(screen.text.plainText(), row.undone.front());
  }
}

TEST(RichTextEdit, aLongUnbrokenRunIsBrokenAnywhere) {
  UndoScreen screen;
  const auto mode = [&] { return screen.edit.wordWrapMode(); };
  std::string runs(10'000, 'a');
  runs.append(" ").append(10'000, 'b').append("\nc");
  screen.text.setPlainText(runs);
  EXPECT_EQ(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
  screen.text.select({20'000, 0});
  typeKeys(screen.edit, "b");
  EXPECT_EQ(mode(), QTextOption::WrapAnywhere);
  typeKeys(screen.edit, "\b");
  EXPECT_EQ(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
  screen.text.select({10'000, 1});
  typeKeys(screen.edit, "x");
  EXPECT_EQ(mode(), QTextOption::WrapAnywhere);
  screen.undo.undo();
  EXPECT_EQ(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
  screen.text.replaceSelection("x");
  screen.text.setPlainText("");
  EXPECT_EQ(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST(RichTextEdit, pastesRtfUnderEachOfItsNamesAndElseTheText) {
  struct Row {
    const char* type;
    QByteArray bytes;
    std::string expected;
    bool isBold;
  };
  const Row rows[] = {{"text/rtf", "{\\rtf1\\b fett}", "xfett", true},
                      {"text/richtext", "{\\rtf1\\b fett\\par}", "xfett", true},
                      {"application/rtf", "{\\rtf1{\\fonttbl}\\b fe\\'84tt}", "xfe\u201Ett", true},
                      {"text/rtf", "{\\rtf1{\\pict 00}}", "xText", false},
                      {"text/richtext", "<bold>no RTF</bold>", "xText", false}};
  for (const Row& row : rows) {
    Screen screen;
    screen.text.setPlainText("x");
    screen.edit.moveCursor(QTextCursor::End);
    auto* const source = new QMimeData;
    source->setText("Text");
    source->setData(QString::fromLatin1(row.type), row.bytes);
    QApplication::clipboard()->setMimeData(source);
    screen.edit.paste();
    EXPECT_EQ(screen.text.plainText(), row.expected);
    EXPECT_EQ(screen.text.format().bold, row.isBold) << row.expected;
  }
}

TEST(RichTextEdit, copiesNoBreakSpacesAsSuch) {
  Screen screen;
  screen.text.setPlainText("a\u00A0b\r\nc");
  screen.edit.selectAll();
  screen.edit.copy();
  EXPECT_EQ(ui::toUtf8(QApplication::clipboard()->text()), "a\u00A0b\nc");
}

TEST(RichTextEdit, writesTabsAndIsLeftByControlTab) {
  QWidget window;
  QVBoxLayout layout(&window);
  ui::RichTextEdit edit;
  QLineEdit behind;
  layout.addWidget(&edit);
  layout.addWidget(&behind);
  window.show();
  window.activateWindow();
  edit.setFocus();
  QTest::keyClick(&edit, Qt::Key_Tab);
  EXPECT_EQ(edit.toPlainText(), "\t");
  QTest::keyClick(&edit, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(window.focusWidget(), &behind);
  EXPECT_EQ(edit.toPlainText(), "\t");
}

// Whoever follows the text asks at once, while the toolkit's caret still stands where it stood in the longer text.
TEST(RichTextEdit, answersWhileTheWholeTextIsReplaced) {
  ui::RichTextEdit edit;
  ui::QtRichText text(edit);
  text.setPlainText("a long text\nof two lines");
  text.select({.start = 20, .length = 3});
  std::int64_t asked = 0;
  QObject::connect(&edit, &ui::RichTextEdit::edited, &edit, [&] {
    EXPECT_LE(text.selection().start, 2);
    EXPECT_LE(text.countSelection().characters, 2);
    EXPECT_EQ(text.caret().line, 1);
    ++asked;
  });
  text.setPlainText("ab");
  EXPECT_GE(asked, 1);
}

TEST(RichTextEdit, tellsOnceWhatHappened) {
  UndoScreen screen;
  const QSignalSpy edited(&screen.edit, &ui::RichTextEdit::edited);
  const QSignalSpy moved(&screen.edit, &ui::RichTextEdit::caretMoved);
  const QSignalSpy released(&screen.edit, &ui::RichTextEdit::released);
  QTest::keyClick(&screen.edit, Qt::Key_A);
  EXPECT_EQ(std::vector({edited.count(), moved.count(), released.count()}), std::vector<qsizetype>({1, 1, 1}));
  QTest::keyClick(&screen.edit, Qt::Key_Left);
  EXPECT_EQ(std::vector({edited.count(), moved.count(), released.count()}), std::vector<qsizetype>({1, 2, 2}));
  screen.edit.selectAll();
  QTest::keyClick(&screen.edit, Qt::Key_A);
  EXPECT_EQ(edited.count(), 2) << "the same text again";
  QTest::mouseClick(screen.edit.viewport(), Qt::LeftButton);
  EXPECT_EQ(released.count(), 4);
}

// The toolkit tells of a drop behind its edit block; the mouse moves the caret before that.
TEST(RichTextEdit, takesADropOfSeveralLinesFromItself) {
  UndoScreen screen;
  screen.text.setPlainText("eins\r\nzwei\r\ndrei");
  screen.text.select({0, 10});
  const std::unique_ptr<QMimeData> dragged(new QMimeData);
  dragged->setData("text/rtf", "{\\rtf1 eins\\par zwei}");
  QWidget& paper = *screen.edit.viewport();
  const QPoint place = paper.rect().bottomRight() - QPoint(3, 3);
  QDragEnterEvent arrival(place, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&paper, &arrival);
  QDropEvent drop(place, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&paper, &drop);
  EXPECT_EQ(screen.text.plainText(), "eins\r\nzwei\r\ndreieins\r\nzwei");
  EXPECT_EQ(screen.text.countAll(), (base::TextCount{.characters = 20, .lineEnds = 3}));
  screen.undo.undo();
  EXPECT_EQ(screen.text.plainText(), "eins\r\nzwei\r\ndrei");
}

TEST(RichTextEdit, isWhitePaperInDarkSurroundings) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(Qt::black));
  const ui::RichTextEdit edit;
  QApplication::setPalette(before);
  EXPECT_EQ(edit.palette().color(QPalette::Base), QColor(Qt::white));
  EXPECT_EQ(edit.palette().color(QPalette::Text), QColor(Qt::black));
}

}  // namespace
}  // namespace support
