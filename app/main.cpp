#include "application.h"
#include "displayenvironment.h"
#include "language.h"

#include <QDir>

int main(int argc, char **argv)
{
    DisplayEnvironment::prepare();
    Application application(argc, argv);
    Language::install(Language::fileNameFor(argc, argv));
    // Where the cabinet test keeps its background picture. Without it only the kept copy is lost.
    QDir().mkdir(QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture"));
    application.mainWindow().show();
    // The windows were built before the translation was there.
    application.mainWindow().updateLanguage();
    return Application::exec();
}
