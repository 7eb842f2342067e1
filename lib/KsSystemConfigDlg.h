#pragma once

// The public surface of the settings-dialog library.
#include "config/CustomizeEntries.h"
#include "config/DialogData.h"
#include "config/DrawEntries.h"
#include "config/HatchSettingDlgData.h"
#include "config/LayerEntries.h"
#include "config/LibraryModule.h"
#include "config/SystemEntries.h"
#include "hatch/DrawingHatch.h"
