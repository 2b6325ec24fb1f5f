#pragma once

/// What a connection is for. One that looks runs no procedure.
enum class OdbcUse { change, look };
