// What the clipboard and drags carry: a document goes out as RTF, HTML and plain text; in come RTF with its formats, or
// the text of HTML, or plain text.
//
// What RTF cannot hold is dropped, text never: cells of tables are parted by tabs, rows by line ends.
#pragma once

#include <QMimeData>
#include <optional>

#include "base/document.h"

namespace ui {

/// Makes each form when somebody asks for it, as often as somebody does.
class DocumentMimeData : public QMimeData {
  Q_OBJECT

 public:
  explicit DocumentMimeData(base::Document document) : document_(std::move(document)) {}

  [[nodiscard]] QStringList formats() const override;
  [[nodiscard]] bool hasFormat(const QString& type) const override { return formats().contains(type); }

 protected:
  [[nodiscard]] QVariant retrieveData(const QString& type, QMetaType wanted) const override;

 private:
  const base::Document document_;
};

/// Whether `data` brings text. Files are none.
bool bringsText(const QMimeData& data);
/// What brings formats that we read; nothing when it brings none or holds no text.
std::optional<base::Document> formattedText(const QMimeData& data);
/// The text alone, fit for a document.
QString plainText(const QMimeData& data);

}  // namespace ui
