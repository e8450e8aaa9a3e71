#include "app/pluginfolders.h"

// The toolkit is linked in with the plugins that it needs, and then looks for no others.
void loadNoPluginsFromProgramFolder() {}
