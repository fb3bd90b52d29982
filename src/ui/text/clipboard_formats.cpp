// What the clipboard and drags carry.
#include "ui/text/clipboard_formats.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "editor/rtf_reader.h"
#include "editor/rtf_writer.h"
#include "ui/text/qt_document.h"
#include "ui/text/text_entry.h"
#include "ui/utf8.h"

namespace ui {
namespace {

// By the names of different desktops; the first is the most usual one.
constexpr std::array kRtf = {"text/rtf", "text/richtext", "application/rtf"};
constexpr const char* kHtml = "text/html";
constexpr const char* kText = "text/plain";

bool isRtf(const QString& type) {
  return std::any_of(kRtf.begin(), kRtf.end(), [&](const char* name) { return type == QLatin1String(name); });
}

QByteArray rtfOf(const QMimeData& data) {
  for (const char* const name : kRtf) {
    if (QByteArray bytes = data.data(QString::fromLatin1(name)); !bytes.isEmpty()) return bytes;
  }
  return {};
}

std::optional<base::Document> read(const QByteArray& rtf) {
  const std::string_view bytes(rtf.constData(), static_cast<std::size_t>(rtf.size()));
  if (!editor::isRtf(bytes)) return std::nullopt;
  base::Document document = editor::readRtf(bytes);
  const bool holdsText = document.paragraphs.size() > 1 || !document.paragraphs.front().text.empty();
  return holdsText ? std::optional(std::move(document)) : std::nullopt;
}

QString htmlOf(const base::Document& document) {
  QTextDocument page;
  QTextCursor cursor(&page);
  insertDocument(cursor, document);
  return page.toHtml();
}

// What stands between a paragraph of HTML and the next one. A table has an empty paragraph before and behind it where
// no other is, which is no text of the page.
QString between(const QTextBlock& block, const QTextBlock& next) {
  const QTextTable* const table = QTextCursor(block).currentTable();
  const QTextTable* const nextTable = QTextCursor(next).currentTable();
  const bool opens = block == block.document()->begin() && block.length() == 1 && nextTable != nullptr;
  const bool closes = !next.next().isValid() && next.length() == 1 && table != nullptr;
  if (table != nextTable) return opens || closes ? QString() : QStringLiteral("\n");
  if (table == nullptr) return QStringLiteral("\n");
  const QTextTableCell cell = table->cellAt(block.position());
  const QTextTableCell nextCell = table->cellAt(next.position());
  return cell != nextCell && cell.row() == nextCell.row() ? QStringLiteral("\t") : QStringLiteral("\n");
}

// What a page names is not fetched: it might be any file of this machine.
struct Page : QTextDocument {
  QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return {}; }
};

QString textOfHtml(const QString& source) {
  Page page;
  page.setUndoRedoEnabled(false);
  page.setHtml(source);
  QString text;
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    text += block.text();
    if (block.next().isValid()) text += between(block, block.next());
  }
  return enteringText(text);
}

}  // namespace

QStringList DocumentMimeData::formats() const {
  QStringList result;
  for (const char* const name : kRtf) result += QString::fromLatin1(name);
  return result << QString::fromLatin1(kHtml) << QString::fromLatin1(kText);
}

QVariant DocumentMimeData::retrieveData(const QString& type, QMetaType /*wanted*/) const {
  if (isRtf(type)) return QByteArray::fromStdString(editor::writeRtfPiece(document_));
  if (type == QLatin1String(kHtml)) return htmlOf(document_);
  if (type != QLatin1String(kText)) return {};
  return toQString(base::plainText(document_)).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

bool bringsText(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); })) return false;
  const QStringList types = data.formats();
  return data.hasText() || data.hasHtml() || std::any_of(types.begin(), types.end(), isRtf);
}

std::optional<base::Document> formattedText(const QMimeData& data) { return read(rtfOf(data)); }

QString plainText(const QMimeData& data) {
  if (data.hasHtml()) {
    if (QString text = textOfHtml(data.html()); !text.isEmpty()) return text;
  }
  if (data.hasText()) return enteringText(data.text());
  const auto formatted = formattedText(data);
  return formatted ? enteringText(toQString(base::plainText(*formatted))) : QString();
}

}  // namespace ui
