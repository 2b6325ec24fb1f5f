#pragma once

// Every kind of control that a page may own.
#include "controls/button.h"
#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/control.h"
#include "controls/date_time_picker.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/option_button_group.h"
#include "controls/progress_bar.h"
#include "controls/spin_control.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "controls/tree_view.h"
