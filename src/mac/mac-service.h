// The service's decision, and its dealings with the running client.
#pragma once

#include "cloud-service.h"

// The one implementation of Service. What differs between the systems lies behind the platform room, so that this class
// serves Linux as well. Handler thread, as Service tells.
class MacService : public Service {
public:
    MacService();
    ~MacService() override;

    // A process-wide object, made on first use. It belongs to the class's interface; the running program makes one of
    // its own, and nothing may depend on the two being the same.
    static MacService* GetInstace();

    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;
    void PreUpgrade() override;
    bool IsNeedUpgrade() override;

    // By other names, what Service does. Nothing in the launcher calls them.
    void LoadSourceVerInfo();
    void LoadTargetVerInfo();

    // Whether the client's UI binary stands in the private copy. Links are followed, and the execute bit is not asked
    // for. Source: access(2).
    bool PerUserBinPathExist();

    // Starts the client as a process of its own. 0 if the start could be made, -1 if not.
    int LaunchPerUserBin();

    // Stops the client whose pid file "ui.pid" lies in `folder`: SIGTERM, up to 15 probes a second apart, then SIGKILL,
    // which is not awaited. Returns at once where there is no such file or no such process. The process id is taken as
    // the file gives it. Source: kill(2).
    void StopServiceByPath(const QString& folder);
};
