# Qt's headers take more than half of a Qt source's compile time here (FmFlexion.cpp: 3.0 s,
# 1.4 s with them precompiled). They are compiled once per build into one precompiled header
# that the Qt libraries, the programs and the widget tests take up, instead of parsing them
# again in each of their hundred sources. Qt Test is not in it: its header reads each test
# folder's own build and source paths, and a header compiled once cannot hold them.
set(TEXALON_CABECERAS_QT
  <QAbstractItemView> <QApplication> <QColor> <QComboBox> <QDesktopServices> <QDialog> <QDir>
  <QFile> <QFileInfo> <QFont> <QFontMetrics> <QFontMetricsF> <QFrame> <QGraphicsEllipseItem>
  <QGraphicsLineItem> <QGraphicsRectItem> <QGraphicsScene> <QGraphicsView> <QGridLayout>
  <QGroupBox> <QGuiApplication> <QHBoxLayout> <QHeaderView> <QIcon> <QImage> <QKeyEvent>
  <QLabel> <QLineEdit> <QMainWindow> <QMdiArea> <QMdiSubWindow> <QMenu> <QMenuBar>
  <QMessageBox> <QMouseEvent> <QPainter> <QPainterPath> <QPdfWriter> <QPen> <QPixmap>
  <QPixmapCache> <QPointer> <QPrinterInfo> <QPushButton> <QRadioButton> <QRectF>
  <QRegularExpression> <QScreen> <QString> <QStringList> <QStyleFactory> <QSvgRenderer>
  <QTemporaryDir> <QTextBrowser> <QTextStream> <QTimer> <QToolBar> <QToolButton> <QUrl>
  <QVBoxLayout> <QWidget>)

add_library(texalon_precompilado_qt OBJECT ${PROJECT_SOURCE_DIR}/cmake/Precompilado.cpp)
target_link_libraries(texalon_precompilado_qt PRIVATE Qt6::Widgets Qt6::PrintSupport Qt6::Svg texalon_avisos)
target_precompile_headers(texalon_precompilado_qt PRIVATE ${TEXALON_CABECERAS_QT})

# Under ccache the preprocessor names the precompiled header instead of failing on it, so that
# the sources that take it up are cached as the others are.
if(TEXALON_CCACHE)
  set(TEXALON_OPCIONES_PRECOMPILADO -fpch-preprocess)
  target_compile_options(texalon_precompilado_qt PRIVATE ${TEXALON_OPCIONES_PRECOMPILADO})
endif()

# A target whose sources include Qt's widgets takes up the precompiled header. The compiler takes
# it only where Qt's module macros stand as they stood when it was made, so the target links the
# same modules.
function(texalon_precompilado_qt objetivo)
  target_link_libraries(${objetivo} PRIVATE Qt6::Widgets Qt6::PrintSupport Qt6::Svg)
  target_precompile_headers(${objetivo} REUSE_FROM texalon_precompilado_qt)
  target_compile_options(${objetivo} PRIVATE ${TEXALON_OPCIONES_PRECOMPILADO})
endfunction()
