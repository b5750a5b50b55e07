#include "InspectorWindow.h"

#include "kt/QObjects.h"
#include "kt/rtl/objects/Make.h"

#include <QLabel>
#include <QVBoxLayout>

TInspectorWindow::TInspectorWindow() : FInspector(kt::Make<kt::TKTObjectInspector>()), FHead(new QLabel) {
  setWindowTitle(tr("Inspector"));
  FHead->setText(tr("Click on a widget with Ctrl and Shift held."));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(FHead);
  layout->addWidget(FInspector->GetHandle(), 1);
  resize(360, 600);
}

void TInspectorWindow::Inspect(QWidget& widget) {
  FHead->setText(tr("%1 %2").arg(QString::fromUtf8(widget.metaObject()->className()), widget.objectName()));
  FInspector->GetObjects().Clear();
  FInspector->GetObjects().Add(kt::ComponentOf(&widget));
}
