#include "settings/project_settings.h"
