#include "kt/qobjects/WidgetFactories.h"

#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QActionGroup>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QColorDialog>
#include <QColumnView>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QCompleter>
#include <QDateEdit>
#include <QDateTimeEdit>
#include <QDial>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QErrorMessage>
#include <QFileDialog>
#include <QFocusFrame>
#include <QFontComboBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QFrame>
#include <QGraphicsView>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeySequenceEdit>
#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QObject>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QRubberBand>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QSplashScreen>
#include <QSplitter>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTextEdit>
#include <QTimeEdit>
#include <QTimer>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QUndoView>
#include <QVBoxLayout>
#include <QWidget>
#include <QWizard>
#include <QWizardPage>

namespace kt {

namespace {

using TEntry = std::pair<const QMetaObject*, TQObjectFactory>;

template <class T>
TEntry Of() {
  return {&T::staticMetaObject, [] { return std::make_unique<T>(); }};
}

}  // namespace

const std::vector<TEntry>& QtFactories() {
  static const std::vector<TEntry> factories = {
      Of<QAbstractScrollArea>(),
      Of<QAbstractSlider>(),
      Of<QAbstractSpinBox>(),
      Of<QAction>(),
      Of<QButtonGroup>(),
      Of<QCalendarWidget>(),
      Of<QCheckBox>(),
      Of<QColorDialog>(),
      Of<QColumnView>(),
      Of<QComboBox>(),
      Of<QCommandLinkButton>(),
      Of<QCompleter>(),
      Of<QDateEdit>(),
      Of<QDateTimeEdit>(),
      Of<QDial>(),
      Of<QDialog>(),
      Of<QDialogButtonBox>(),
      Of<QDockWidget>(),
      Of<QDoubleSpinBox>(),
      Of<QErrorMessage>(),
      Of<QFileDialog>(),
      Of<QFocusFrame>(),
      Of<QFontComboBox>(),
      Of<QFontDialog>(),
      Of<QFormLayout>(),
      Of<QFrame>(),
      Of<QGraphicsView>(),
      Of<QGridLayout>(),
      Of<QGroupBox>(),
      Of<QHBoxLayout>(),
      Of<QInputDialog>(),
      Of<QKeySequenceEdit>(),
      Of<QLCDNumber>(),
      Of<QLabel>(),
      Of<QLineEdit>(),
      Of<QListView>(),
      Of<QListWidget>(),
      Of<QMainWindow>(),
      Of<QMdiArea>(),
      Of<QMdiSubWindow>(),
      Of<QMenu>(),
      Of<QMenuBar>(),
      Of<QMessageBox>(),
      Of<QObject>(),
      Of<QPlainTextEdit>(),
      Of<QProgressBar>(),
      Of<QProgressDialog>(),
      Of<QPushButton>(),
      Of<QRadioButton>(),
      Of<QScrollArea>(),
      Of<QScrollBar>(),
      Of<QSlider>(),
      Of<QSpinBox>(),
      Of<QSplashScreen>(),
      Of<QSplitter>(),
      Of<QStackedLayout>(),
      Of<QStackedWidget>(),
      Of<QStatusBar>(),
      Of<QTabBar>(),
      Of<QTabWidget>(),
      Of<QTableView>(),
      Of<QTableWidget>(),
      Of<QTextBrowser>(),
      Of<QTextEdit>(),
      Of<QTimeEdit>(),
      Of<QTimer>(),
      Of<QToolBar>(),
      Of<QToolBox>(),
      Of<QToolButton>(),
      Of<QTreeView>(),
      Of<QTreeWidget>(),
      Of<QUndoView>(),
      Of<QVBoxLayout>(),
      Of<QWidget>(),
      Of<QWizard>(),
      Of<QWizardPage>(),
      {&QActionGroup::staticMetaObject, [] { return std::make_unique<QActionGroup>(nullptr); }},
      {&QBoxLayout::staticMetaObject, [] { return std::make_unique<QBoxLayout>(QBoxLayout::LeftToRight); }},
      {&QHeaderView::staticMetaObject, [] { return std::make_unique<QHeaderView>(Qt::Horizontal); }},
      {&QRubberBand::staticMetaObject, [] { return std::make_unique<QRubberBand>(QRubberBand::Rectangle); }},
  };
  return factories;
}

}  // namespace kt
