#pragma once

class MorvaneDatabase;

namespace Brontel::Plugin::ItemData::Model {

/// Creates or extends the plug-in's five tables and makes sure that the quantity variable is there. Reports nothing:
/// what fails is tried again at the next start. A null database does nothing.
void initDB(MorvaneDatabase* db);

}  // namespace Brontel::Plugin::ItemData::Model
