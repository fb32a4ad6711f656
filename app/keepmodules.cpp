// Only in the sanitizer builds: libraries stay loaded until the end, so that memory which Qt's
// plugins hold by their own variables is not taken for lost once they are unloaded.
extern "C" int dlclose(void * /*handle*/)
{
    return 0;
}
