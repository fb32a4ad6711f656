#pragma once

// What has to be settled about the display before the application object exists.
namespace DisplayEnvironment {

// One pattern pixel is one screen pixel: switches Qt's scaling off, whatever the
// desktop or the environment asks for; the controls follow QT_SCALE_FACTOR by themselves. And since
// Wayland lets no program place its own windows, a Wayland session is asked for its X server first,
// unless QT_QPA_PLATFORM says otherwise. OpenGL, which nothing here paints with and which takes
// half of the program's memory, is left out unless QT_XCB_GL_INTEGRATION asks for it.
void prepare();

} // namespace DisplayEnvironment
