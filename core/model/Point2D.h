#pragma once

struct Point2D {
  double x = 0.0;
  double y = 0.0;
};
