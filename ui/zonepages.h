#pragma once

/// Pages of the zone tab widget, by index; their order is fixed.
enum ZonePage { SinglePage, ZonesPage, StripePage, PerKeyPage };
