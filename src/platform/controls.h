#pragma once

// Every kind of control that a page may own.
#include "platform/button.h"
#include "platform/check_box.h"
#include "platform/combo_box.h"
#include "platform/control.h"
#include "platform/date_time_picker.h"
#include "platform/label.h"
#include "platform/list_box.h"
#include "platform/option_button_group.h"
#include "platform/progress_bar.h"
#include "platform/spin_control.h"
#include "platform/text_box.h"
#include "platform/timer.h"
#include "platform/tree_view.h"
