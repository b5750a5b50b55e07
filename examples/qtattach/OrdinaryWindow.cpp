#include "OrdinaryWindow.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>

namespace {

template <class T>
T* Named(T* widget, const char* name) {
  widget->setObjectName(QString::fromLatin1(name));
  return widget;
}

}  // namespace

TOrdinaryWindow::TOrdinaryWindow() {
  setObjectName(QStringLiteral("OrdinaryWindow"));
  setWindowTitle(tr("An ordinary window"));
  auto* form = new QFormLayout(this);
  auto* slider = Named(new QSlider(Qt::Horizontal), "Level");
  auto* progress = Named(new QProgressBar, "Progress");
  form->addRow(tr("Name"), Named(new QLineEdit(tr("Somebody")), "PersonName"));
  form->addRow(tr("Level"), slider);
  form->addRow(progress);
  form->addRow(Named(new QCheckBox(tr("Remember me")), "Remember"));
  form->addRow(Named(new QPushButton(tr("Sign in")), "SignIn"));
  connect(slider, &QSlider::valueChanged, progress, &QProgressBar::setValue);
}
