// The library's widgets to look at. With --pictures, photographs of them for the documentation.

#include "GalleryWindow.h"
#include "Pictures.h"

#include <QApplication>
#include <QCommandLineParser>

#include <iostream>

int main(int argc, char** argv) {
  namespace Gallery = Zenvora::Lumidex::Gallery;
  QApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("The widgets of LumidexUtil to look at."));
  parser.addHelpOption();
  const QCommandLineOption pictures(
      QStringLiteral("pictures"),
      QStringLiteral("Photograph the widgets into PNG files in <folder>, which exists."),
      QStringLiteral("folder"));
  parser.addOption(pictures);
  parser.process(application);

  const QString missing = Gallery::UseFontsOfPictures();
  if (parser.isSet(pictures)) {
    if (!missing.isEmpty()) {
      std::cerr << "lumidex_gallery: these fonts are missing: " << missing.toStdString() << '\n';
      return 2;
    }
    if (!Gallery::MakePictures(parser.value(pictures))) {
      std::cerr << "lumidex_gallery: cannot write pictures into " << parser.value(pictures).toStdString()
                << '\n';
      return 1;
    }
    return 0;
  }
  Gallery::GalleryWindow window;
  window.show();
  return QApplication::exec();
}
