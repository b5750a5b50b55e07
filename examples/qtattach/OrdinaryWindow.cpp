#include "OrdinaryWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

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
  BuildForm();
  BuildMenus();
}

void TOrdinaryWindow::BuildForm() {
  auto* content = Named(new QWidget, "Content");
  auto* form = new QFormLayout(content);
  auto* slider = Named(new QSlider(Qt::Horizontal), "Level");
  auto* progress = Named(new QProgressBar, "Progress");
  auto* country = Named(new QComboBox, "Country");
  country->addItems({tr("Austria"), tr("Germany"), tr("Switzerland")});
  auto* erase = Named(new QPushButton(tr("Delete account")), "DeleteAccount");
  erase->setEnabled(false);
  auto* more = Named(new QPushButton(tr("More...")), "More");
  form->addRow(tr("Name"), Named(new QLineEdit(tr("Somebody")), "PersonName"));
  form->addRow(tr("Age"), Named(new QSpinBox, "Age"));
  form->addRow(tr("Country"), country);
  form->addRow(tr("Level"), slider);
  form->addRow(progress);
  form->addRow(Named(new QCheckBox(tr("Remember me")), "Remember"));
  form->addRow(Named(new QPushButton(tr("Sign in")), "SignIn"));
  form->addRow(erase);
  form->addRow(more);
  connect(slider, &QSlider::valueChanged, progress, &QProgressBar::setValue);
  connect(more, &QPushButton::clicked, this, [this] { OpenDialog(); });
  setCentralWidget(content);
}

void TOrdinaryWindow::BuildMenus() {
  QMenu* menu = Named(menuBar()->addMenu(tr("&Window")), "WindowMenu");
  menuBar()->setObjectName(QStringLiteral("Menus"));
  Named(menu->addAction(tr("&More..."), this, [this] { OpenDialog(); }), "MoreAction");
  Named(menu->addAction(tr("&Second window"), this, [this] { OpenSecond(); }), "SecondAction");
  Named(menu->addAction(tr("&Close"), this, [this] { close(); }), "CloseAction");
}

void TOrdinaryWindow::OpenDialog() {
  auto* dialog = Named(new QDialog(this), "MoreDialog");
  dialog->setWindowTitle(tr("More"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setModal(true);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(Named(new QLabel(tr("This dialog keeps the window behind it from being used.")), "Note"));
  layout->addWidget(Named(new QCheckBox(tr("Ask again")), "AskAgain"));
  auto* buttons = Named(new QDialogButtonBox(QDialogButtonBox::Close), "Buttons");
  connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  layout->addWidget(buttons);
  dialog->show();
}

void TOrdinaryWindow::OpenSecond() {
  auto* second = Named(new QLabel(tr("Another window.")), "SecondWindow");
  second->setWindowTitle(tr("Second"));
  second->setAttribute(Qt::WA_DeleteOnClose);
  second->setMargin(30);
  // Goes with this one, though it stands by itself.
  connect(this, &QObject::destroyed, second, [second] { delete second; });
  second->show();
}
