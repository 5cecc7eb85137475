#pragma once

#define IDD_FLOOR 100
