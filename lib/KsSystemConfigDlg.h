#pragma once

// The public surface of the settings-dialog library.
#include "config/DialogData.h"
#include "config/LibraryModule.h"
#include "config/SystemEntries.h"
#include "config/HatchSettingDlgData.h"
#include "hatch/DrawingHatch.h"
