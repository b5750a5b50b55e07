// The form as an object inspector shows it, as text.
#include "designer/document/ComponentTree.h"
#include "designer/document/FormDocument.h"
#include "inspectdump/InspectedText.h"
#include "kt/KTObjectInspector.h"
#include "kt/rtl/objects/Make.h"

#include <QUndoStack>

namespace designer {
namespace {

class TTreeText {
 public:
  explicit TTreeText(const TFormDocument& document) : FDocument(document) {
    // What a component refers to has a tree of its own.
    FInspector->SetInplaceComponents(false);
    FInspector->SetInplaceCollections(true);
    FInspector->SetInplaceTStrings(true);
  }

  QString Of(kt::TComponent* component, int level) {
    const QString indent(2 * level, u' ');
    QString text = QStringLiteral("%1%2: %3\n").arg(indent, component->GetName(), ClassNameOf(*component));
    text += TextOfProperties(*FInspector, component, level + 1);
    for (kt::TComponent* child : FDocument.ChildrenOf(component)) text += Of(child, level + 1);
    return text;
  }

 private:
  const TFormDocument& FDocument;
  std::unique_ptr<kt::TKTObjectInspector> FInspector = kt::Make<kt::TKTObjectInspector>();
};

}  // namespace

QString TFormDocument::TreeText() const { return TTreeText(*this).Of(FForm.get(), 0); }

}  // namespace designer
