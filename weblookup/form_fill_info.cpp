#include "form_fill_info.h"
