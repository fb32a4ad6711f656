#include "application.h"
#include "displayenvironment.h"
#include "language.h"

#include <QDir>

namespace {

// Where the cabinet test keeps its background picture. Without it only the kept copy is lost.
void createPictureFolder()
{
    const QString folder =
        QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture");
    if (!QDir(folder).exists())
        QDir().mkdir(folder);
}

} // namespace

int main(int argc, char **argv)
{
    DisplayEnvironment::prepare();
    Application application(argc, argv);
    Language::install(Language::fileNameFor(argc, argv));
    createPictureFolder();
    application.mainWindow().show();
    // The windows were built before the translation was there.
    application.mainWindow().updateLanguage();
    return Application::exec();
}
