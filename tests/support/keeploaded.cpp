/// Preloaded in runs with the leak sanitizer: plugins stay loaded, so that what they leave behind is reported with the
/// names of the functions that made it, and the suppressions can tell it from ours.
extern "C" int dlclose(void *)
{
    return 0;
}
