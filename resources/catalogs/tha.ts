<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>ลบแล้ว</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>เลิกเชื่อมโยง</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>เชื่อมต่อผ่าน Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>เลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>ผสาน</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>ข้อผิดพลาด</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>เกิดไฟล์ขัดแย้งกัน ขณะนี้ไฟล์ถูกเปลี่ยนชื่อเป็น %1 แล้ว</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>ค่าไม่ถูกต้อง โปรดตรวจสอบแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>ไม่สามารถใช้เครือข่ายได้ โปรดตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>เสร็จสิ้น</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>โฟลเดอร์ภายในเครื่อง</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>เชื่อมโยงอีกครั้ง</translation>
    </message>
    <message>
        <source>About</source>
        <translation>เกี่ยวกับ</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>กำลังตรวจสอบชื่อผู้ใช้และรหัสผ่านของคุณ...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>เชื่อมต่อสำเร็จแล้ว</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>ไฟล์ในทั้งสองโฟลเดอร์จะถูกผสานเข้าด้วยกัน คุณต้องการดำเนินการต่อหรือไม่</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>กำลังเริ่มทำงาน...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>โปรดตรวจทานการตั้งค่าต่อไปนี้ก่อนเสร็จสิ้น</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>กำลังทดสอบการเชื่อมต่อ...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>ชื่อผู้ใช้หรือรหัสผ่านไม่ถูกต้อง</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>เปลี่ยนโฟลเดอร์</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>โฟลเดอร์ไม่ว่างเปล่า</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>เส้นทางโฟลเดอร์</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Ferrylink ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>ชื่อ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>ค่า</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ยินดีต้อนรับ</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>ออก</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>ไฟล์ที่อัปเดตล่าสุด</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>ดาวน์โหลดแล้ว</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>วิธีใช้</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>ถัดไป</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>เริ่มต้นใช้งาน</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>เวอร์ชัน</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>กำลังค้นหาการเปลี่ยนแปลง...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>ขาดการเชื่อมต่อกับฮับ กำลังเชื่อมต่อใหม่...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>อัปโหลดแล้ว</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>กำหนดเอง</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>เวลา</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>เครือข่ายภายใน</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>การเชื่อมต่อโดยตรง</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>ลงชื่อเข้าใช้ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>อินเทอร์เน็ต</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>กำลังตรวจหาประเภทการเชื่อมต่อ...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>รีเลย์ Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>บริการ Ferrylink ไม่ตอบสนอง โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>อัปเดตแล้ว %1 ไฟล์</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>คุณมีสิทธิ์อ่านโฟลเดอร์นี้เท่านั้น การเปลี่ยนแปลงที่คุณทำบนคอมพิวเตอร์เครื่องนี้จะไม่ถูกอัปโหลด</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>โควตาพื้นที่เก็บข้อมูลของคุณบนฮับเต็มแล้ว โปรดเพิ่มพื้นที่ว่างแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>ประเภทการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>โฟลเดอร์แบบอ่านอย่างเดียว</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>เปลี่ยนโฟลเดอร์ภายในเครื่อง</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>โฟลเดอร์ที่แชร์</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>ไม่สามารถตรวจสอบใบรับรอง SSL ของฮับได้</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>พอร์ต</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>ข้อมูล</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>พร็อกซี</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>ไม่ใช้พร็อกซีเซิร์ฟเวอร์</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>ใช้การตั้งค่าพร็อกซีของระบบ</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>รหัสผ่าน</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>เลือกโฟลเดอร์</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>การเชื่อมต่อกับเซิร์ฟเวอร์ควบคุม Ferrylink ล้มเหลว โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>ยังไม่ได้บันทึกการเปลี่ยนแปลงของคุณ คุณต้องการออกจากหน้านี้หรือไม่</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>พื้นที่เก็บข้อมูลเต็ม</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>การตั้งค่าพร็อกซี</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>ไม่สามารถเปิดใช้งานการซิงค์สำหรับโฟลเดอร์ที่แชร์ได้</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>โฟลเดอร์นี้ซ้อนทับกับโฟลเดอร์ที่ซิงค์อยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <translation>ซิงค์โฟลเดอร์ที่แชร์ได้ไม่เกิน %1 โฟลเดอร์</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>กำลังนำการตั้งค่าไปใช้...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>โปรดป้อนหมายเลขพอร์ตตั้งแต่ 1 ถึง 65535</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>โปรดป้อนที่อยู่และพอร์ตของพร็อกซีเซิร์ฟเวอร์</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <translation>ตั้งค่าพร็อกซีเซิร์ฟเวอร์ด้วยตนเอง</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>ไม่มีการเปลี่ยนแปลงที่จะนำไปใช้</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>เปิดใช้งานการซิงค์</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>ชื่อโฟลเดอร์ที่แชร์</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>สถานะ</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>นำไปใช้</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>การตั้งค่าเครือข่าย</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>จัดการ</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>พร็อกซีเซิร์ฟเวอร์กำหนดให้ลงชื่อเข้าใช้</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>มีบางอย่างผิดพลาด</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>กำลังอัปเดต...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>เข้ารหัสการรับส่งข้อมูลด้วย SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>ชื่อฮับ ที่อยู่ IP หรือ Ferrylink ID</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>แสดงการแจ้งเตือนบนเดสก์ท็อป</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>แสดงไอคอนสถานะการซิงค์บนไฟล์และโฟลเดอร์</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>ตัวเลือก</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>ตัวเลือกทั่วไป</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>ใช้ไอคอนขาวดำในถาดระบบ</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>โฟลเดอร์ที่แชร์ “%1” พร้อมให้คุณใช้งานแล้ว คุณสามารถตั้งค่าให้ซิงค์กับคอมพิวเตอร์เครื่องนี้ได้</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>โฟลเดอร์ที่แชร์ใหม่</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>กำลังตรวจสอบข้อมูล...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>การตั้งค่าอัตโนมัติล้มเหลว โปรดตั้งค่าการเชื่อมต่อด้วยตนเอง</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>กำลังดำเนินการตั้งค่าให้เสร็จสิ้น...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>ดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>การซิงค์แบบเลือก</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>ไฟล์และโฟลเดอร์ที่ตรงกับกฎเหล่านี้จะไม่ถูกซิงค์</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>กำลังติดตั้งการอัปเดต...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>นามสกุลไฟล์</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>โฟลเดอร์อยู่บนจุดเมานต์</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>การอัปเดตซอฟต์แวร์</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>ความคืบหน้า: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <translation>หยุดซิงค์ “%1” หรือไม่ ไฟล์บนคอมพิวเตอร์เครื่องนี้และบนฮับจะถูกเก็บไว้</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>ไม่สามารถเอาโฟลเดอร์ที่แชร์ออกจากรายการได้</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>คีย์การตั้งค่านี้ถูกใช้ไปแล้ว โปรดขอคีย์ใหม่จากผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>ภาษาใหม่จะมีผลหลังจากที่คุณรีสตาร์ทแอปพลิเคชัน</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>โฟลเดอร์</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>ดิสก์ของคอมพิวเตอร์เครื่องนี้เต็มแล้ว โปรดเพิ่มพื้นที่ว่างแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>กำลังโหลดรายการโฟลเดอร์...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>เอาออก</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>คุณแน่ใจหรือไม่ว่าต้องการเลิกเชื่อมโยงคอมพิวเตอร์เครื่องนี้กับฮับ</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>ปลายทาง</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>กำลังเตรียม...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>กำลังอัปโหลด...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>ค่าเริ่มต้นของระบบ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>ภาษา</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>ชื่อโฟลเดอร์</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>กำลังดาวน์โหลด...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>การติดตั้ง [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>กำลังซิงค์ %1 ไฟล์...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>กำลังดาวน์โหลด “%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>โฟลเดอร์ที่จะซิงค์</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>การตั้งค่าขั้นสูง</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>ขนาดไฟล์สูงสุด</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>ชื่อไฟล์ที่ยกเว้น</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>ไฟล์ที่ยกเว้น</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>ฐานข้อมูลภายในเครื่องเสียหาย โปรดเลิกเชื่อมโยงคอมพิวเตอร์เครื่องนี้กับฮับแล้วเชื่อมโยงอีกครั้ง</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>ตัวกรองไฟล์</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>รายการยกเว้น</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>โฟลเดอร์ที่คุณยกเลิกการเลือกจะถูกเอาออกจากคอมพิวเตอร์เครื่องนี้ แต่ยังคงอยู่บนฮับ</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>การจัดการความขัดแย้ง</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>กำลังโหลด...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>โหมดการซิงค์</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>หยุดชั่วคราวแล้ว</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>โฟลเดอร์นี้เป็นจุดเมานต์จึงไม่สามารถซิงค์ได้ โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>การดาวน์โหลด “%1” ถูกยกเลิกแล้ว</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>เริ่มเลย</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>การซิงค์หยุดลงเนื่องจากดิสก์ของคอมพิวเตอร์เครื่องนี้เต็ม</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>การซิงค์หยุดลงเนื่องจากโควตาพื้นที่เก็บข้อมูลของคุณบนฮับเต็มแล้ว</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>กำลังเชื่อมโยง...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>ไม่มีสิทธิ์เข้าถึง</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>ไม่สามารถดึงข้อมูลบัญชีของคุณจากฮับได้</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>ชื่อคอมพิวเตอร์</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>การเชื่อมต่อไม่เสถียร</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>รับลิงก์</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>กำลังเชื่อมโยงคอมพิวเตอร์เครื่องนี้กับฮับ...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>กำลังพยายามซิงค์...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>ผู้ดู</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>คำเตือนเกี่ยวกับใบรับรอง</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>ทำต่อ</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>กฎการยกเว้น</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>การกระทำ</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ชื่อไฟล์</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>ขนาด</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>ปิดใช้งานแล้ว</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>เปิดใช้งานแล้ว</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>หากคุณหยุดซิงค์โฟลเดอร์ที่แชร์นี้ การเปลี่ยนแปลงหลังจากนี้จะไม่ถูกถ่ายโอน ไฟล์ภายในเครื่องจะถูกเก็บไว้</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>เปิดใช้งานการเข้ารหัส SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>เลือกโฟลเดอร์บนคอมพิวเตอร์เครื่องนี้ที่คุณต้องการซิงค์กับฮับ</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>ถูกแชร์กับคุณแล้ว</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>การแชร์ใหม่</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>ดาวน์โหลดเสร็จแล้ว</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>ดาวน์โหลดไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>ภาพรวมฮับ</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>ฮับที่ใช้ที่อยู่นี้เปลี่ยนไปแล้ว โปรดเชื่อมโยงคอมพิวเตอร์เครื่องนี้อีกครั้ง</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>การซิงค์หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>ใบรับรอง SSL ของฮับไม่น่าเชื่อถือ</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>กำลังดำเนินการซิงค์</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>ไคลเอนต์เก่าเกินไปสำหรับฮับ โปรดอัปเดตไคลเอนต์</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>โฟลเดอร์นี้เป็นส่วนหนึ่งของงานสำรองข้อมูลของ Tessaly อยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>งานนี้ไม่ทำงานเนื่องจากไม่สามารถติดต่อฮับได้</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>ไม่ทำงาน</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>ไม่สามารถดาวน์โหลดไฟล์ได้ โปรดตรวจสอบการเชื่อมต่อและสิทธิ์ของคุณ</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>ประวัติเวอร์ชันของไฟล์นี้ไม่พร้อมใช้งาน</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>ไม่สามารถสร้างลิงก์สำหรับรายการนี้ได้</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>สแตนด์บาย</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>เมื่อดับเบิลคลิกไอคอนถาดระบบ</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>ฮับกำลังทำดัชนีโฟลเดอร์นี้ โปรดรอสักครู่</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>การเริ่มต้นล้มเหลว โปรดรีสตาร์ทแอปพลิเคชัน</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>โปรแกรมติดตั้งไม่สามารถแทนที่ไฟล์ที่แอปพลิเคชันอื่นเปิดอยู่ได้</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>ออก</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>พิมพ์</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>เปิดแอปพลิเคชันค้างไว้ คุณจะต้องรีสตาร์ทคอมพิวเตอร์ในภายหลัง</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>คืนค่าไฟล์โปรแกรม ทางลัด และรายการรีจิสทรีที่ขาดหายหรือเสียหาย</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>เปิดใช้ [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] จะดูแลไฟล์ของคุณให้ปลอดภัยและซิงค์ตรงกันเสมอ</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>คลิก “เสร็จสิ้น” เพื่อปิดโปรแกรมติดตั้ง</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>ไม่ได้เชื่อมต่อไดรฟ์ที่เก็บโฟลเดอร์ภายในเครื่อง</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>ซ่อมแซม [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>เรียกดูเวอร์ชันก่อนหน้า</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>คุณต้องการทำอะไร</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>กำลังติดตั้ง [ProductName] บนคอมพิวเตอร์ของคุณ</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ดาวน์โหลดเท่านั้น</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>เกิดข้อผิดพลาดและไม่ได้ติดตั้ง [ProductName] การเปลี่ยนแปลงทั้งหมดที่โปรแกรมติดตั้งทำไว้ถูกยกเลิกแล้ว คุณสามารถเรียกใช้โปรแกรมติดตั้งอีกครั้งได้ทุกเมื่อ</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>ละเว้น</translation>
    </message>
    <message>
        <source>No</source>
        <translation>ไม่ใช่</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>ข้อมูลเกี่ยวกับคอมพิวเตอร์เครื่องนี้และฮับที่เชื่อมโยงอยู่</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>สถานะ:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>ติดตั้ง</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>ใช้ตัวช่วยสร้างนี้เพื่อเปลี่ยน ซ่อมแซม หรือเอา [ProductName] ออก คลิก “ถัดไป” เพื่อดำเนินการต่อ หรือ “ยกเลิก” เพื่อออกจากโปรแกรมติดตั้ง</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>เอา [ProductName] ออก</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>อ่านอย่างเดียว</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>ข้อตกลงสิทธิ์การใช้งาน</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>แอปพลิเคชันเหล่านี้เปิดไฟล์ที่โปรแกรมติดตั้ง [ProductName] จำเป็นต้องแทนที่:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>กิจกรรมการซิงค์</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>ซ่อมแซม</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>กำลังติดตั้ง [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>ไม่พบโฟลเดอร์ภายในเครื่อง โฟลเดอร์อาจถูกย้าย เปลี่ยนชื่อ หรือลบไปแล้ว</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>ลองใหม่</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>ใช่</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>คุณต้องการยกเลิกการติดตั้ง [ProductName] จริงหรือไม่</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>โปรดอ่านข้อตกลงก่อนดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <translation>ปิดแอปพลิเคชันตอนนี้และเปิดใหม่เมื่อการติดตั้งเสร็จสิ้น</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>ไฟล์ที่กำลังใช้งาน</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>ปิดแอปพลิเคชันแล้วคลิก “ลองใหม่” หากคุณคลิก “ละเว้น” การติดตั้ง [ProductName] จะสมบูรณ์หลังจากรีสตาร์ทคอมพิวเตอร์ครั้งถัดไปเท่านั้น</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>เปลี่ยน</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>เลือกว่าจะติดตั้งคุณลักษณะใดและที่ใด</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] จะติดตั้งพร้อมคุณลักษณะทั้งหมดเสมอ</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <translation>เปลี่ยน [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>คุณสามารถเปลี่ยน ซ่อมแซม หรือเอาโปรแกรมที่ติดตั้งออกได้</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>เอาโปรแกรมและการตั้งค่าของโปรแกรมออกจากคอมพิวเตอร์ของคุณ</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>ขั้นตอนนี้อาจใช้เวลาหลายนาที</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>พร้อมที่จะติดตั้ง [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>พร้อมติดตั้ง Tessaly แล้ว คลิก “ติดตั้ง” เพื่อเริ่ม หรือ “ย้อนกลับ” เพื่อตรวจสอบการตั้งค่าของคุณ</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>โปรแกรมติดตั้งกำลังจะเอาโปรแกรมออก</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>พร้อมที่จะเอา [ProductName] ออก</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>คลิก “เอาออก” เพื่อเอา [ProductName] ออกจากคอมพิวเตอร์เครื่องนี้ ไฟล์ที่ซิงค์ของคุณจะถูกเก็บไว้</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>โปรแกรมติดตั้งกำลังจะซ่อมแซมโปรแกรม</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>พร้อมที่จะซ่อมแซม [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>คลิก “ซ่อมแซม” เพื่อเริ่ม “ย้อนกลับ” เพื่อเลือกการดำเนินการอื่น หรือ “ยกเลิก” เพื่อออกจากโปรแกรมติดตั้ง</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>คุณออกจากโปรแกรมติดตั้งก่อนที่จะติดตั้ง [ProductName] ไม่มีการเปลี่ยนแปลงใดๆ บนคอมพิวเตอร์ของคุณ คุณสามารถเรียกใช้โปรแกรมติดตั้งอีกครั้งได้ทุกเมื่อ</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>ตัวช่วยสร้างนี้จะติดตั้ง [ProductName] บนคอมพิวเตอร์ของคุณ คลิก “ถัดไป” เพื่อดำเนินการต่อ หรือ “ยกเลิก” เพื่อออกจากโปรแกรมติดตั้ง</translation>
    </message>
    <message>
        <source>From</source>
        <translation>ตั้งแต่</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>ยินดีต้อนรับสู่การติดตั้ง [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>ติดตั้ง [ProductName] แล้ว</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>การติดตั้ง [ProductName] ถูกยกเลิกแล้ว</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>ประวัติการดาวน์โหลด</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>เชื่อมโยงกับฮับใหม่</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>ไม่สามารถติดตั้ง [ProductName] ได้</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>เปิดใช้งานการซิงค์แล้ว</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>เพิ่มงาน</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>ฉันยอมรับข้อตกลงสิทธิ์การใช้งาน</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>รีเซ็ต</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>โฟลเดอร์</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>ไฟล์ของคุณเป็นปัจจุบันบนทุกอุปกรณ์</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>นี่ไม่ใช่ฮับที่ %1 เคยเชื่อมโยงไว้ โปรดเชื่อมโยงคอมพิวเตอร์เครื่องนี้อีกครั้ง</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>การแชร์ถูกปิดใช้งานสำหรับบัญชีของคุณ</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>งาน “%1” จะหยุดทำงานและการเชื่อมต่อกับฮับจะถูกเอาออก ไฟล์ทั้งสองฝั่งจะถูกเก็บไว้</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>เปิดโฟลเดอร์ที่เก็บไฟล์</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>ไม่สามารถดึงที่อยู่ของไฟล์จากฮับได้</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>เลือกโฟลเดอร์บนคอมพิวเตอร์เครื่องนี้ที่ใช้เก็บไฟล์ของคุณ</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <translation>ฮับเปลี่ยนไปแล้ว</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>ไม่ได้เมานต์โฟลเดอร์ที่แชร์ “%1” บนฮับ</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>วันนี้</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>ไม่ได้เมานต์โวลุ่มของโฟลเดอร์ระยะไกลบนฮับ</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>ตำแหน่งที่ตั้งโฟลเดอร์</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>ซิงค์ไปยังคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>คุณไม่ได้ลงชื่อเข้าใช้ในฐานะผู้ดูแลระบบ คุณลักษณะบางอย่างจึงอาจไม่ได้รับการติดตั้ง คุณต้องการดำเนินการต่อหรือไม่</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>ซิงค์ แชร์ และปกป้องไฟล์ของคุณ</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>การแชร์ไฟล์ผ่าน Ferrylink ถูกปิดใช้งานบนฮับ โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>เมื่อวานนี้</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>เลือกวิธีที่คุณต้องการตั้งค่า Tessaly</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>การตั้งค่าด่วน</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>รายการที่ %1 ถึง %2 จาก %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>เข้าใจแล้ว</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>รายการนี้ถูกลบแล้ว หรือคุณไม่มีสิทธิ์เข้าถึงรายการนี้อีกต่อไป</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>คลิกขวาที่ไฟล์หรือโฟลเดอร์เพื่อแชร์ รับลิงก์ หรือเรียกดูเวอร์ชันก่อนหน้า</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>ช่วงวันที่</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>หยุดซิงค์โฟลเดอร์นี้</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ชั่วโมงที่แล้ว</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>เลือกโฟลเดอร์บนฮับและโฟลเดอร์บนคอมพิวเตอร์เครื่องนี้ เนื้อหาของทั้งสองโฟลเดอร์จะตรงกันเสมอ</translation>
    </message>
    <message>
        <source>May</source>
        <translation>พฤษภาคม</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>คอมพิวเตอร์เครื่องนี้เชื่อมโยงอยู่แล้ว</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>เปลี่ยนชื่อแล้ว</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 วันที่แล้ว</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>เมื่อสักครู่</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 นาทีที่แล้ว</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ไฟล์</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>เดือนที่แล้ว</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>คำสำคัญ</translation>
    </message>
    <message>
        <source>To</source>
        <translation>ถึง</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>ประเภท</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>สัปดาห์ที่แล้ว</translation>
    </message>
    <message>
        <source>April</source>
        <translation>เมษายน</translation>
    </message>
    <message>
        <source>February</source>
        <translation>กุมภาพันธ์</translation>
    </message>
    <message>
        <source>August</source>
        <translation>สิงหาคม</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>ค้นหา</translation>
    </message>
    <message>
        <source>October</source>
        <translation>ตุลาคม</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>ซิงค์โฟลเดอร์นี้อีกครั้ง</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>หยุดซิงค์โฟลเดอร์เหล่านี้</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>ไม่มีประวัติที่จะแสดง</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>ซิงค์โฟลเดอร์เหล่านี้อีกครั้ง</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>ส่งไปยัง</translation>
    </message>
    <message>
        <source>January</source>
        <translation>มกราคม</translation>
    </message>
    <message>
        <source>November</source>
        <translation>พฤศจิกายน</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>กำลังซิงค์</translation>
    </message>
    <message>
        <source>September</source>
        <translation>กันยายน</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>เหตุการณ์ทั้งหมด</translation>
    </message>
    <message>
        <source>July</source>
        <translation>กรกฎาคม</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>วันที่</translation>
    </message>
    <message>
        <source>June</source>
        <translation>มิถุนายน</translation>
    </message>
    <message>
        <source>March</source>
        <translation>มีนาคม</translation>
    </message>
    <message>
        <source>December</source>
        <translation>ธันวาคม</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>ประเภทไฟล์</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>การตั้งค่าขั้นสูง</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>ไม่ต้องแสดงข้อความนี้อีก</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>เริ่มซิงค์ได้ในขั้นตอนเดียวด้วยการตั้งค่าที่แนะนำ</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>โฟลเดอร์โฮมของคุณบนฮับและโฟลเดอร์ใหม่บนคอมพิวเตอร์เครื่องนี้จะตรงกันเสมอนับจากนี้</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <translation>ตั้งค่าเสร็จสมบูรณ์แล้ว</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>ใส่ไฟล์ลงในโฟลเดอร์ที่ซิงค์ แล้วไฟล์จะปรากฏบนฮับและบนคอมพิวเตอร์เครื่องอื่นทั้งหมดของคุณ</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>คลิกไอคอนถาดระบบเพื่อดูสถานะการซิงค์และไฟล์ที่เปลี่ยนแปลงล่าสุด</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <translation>โหมดการตั้งค่า</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>ไม่ ขอบคุณ</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>ซิงค์ไฟล์ของคุณ</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>ติดตามการเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>ค้นหาฮับบนเครือข่ายภายใน</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>ข้อมูลสถานะ</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ชื่อผู้ใช้</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>มีการอัปเดต</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>ผู้ใช้: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>ไฟล์นี้ไม่ได้อยู่ในงานซิงค์ใดๆ</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>เปิดหน้าต่างหลัก</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>เชื่อมโยงคอมพิวเตอร์เครื่องนี้กับฮับอื่น</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>ซิงค์โฟลเดอร์อื่นกับฮับนี้</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>งานซิงค์ใหม่</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>เลือกโฟลเดอร์ ทิศทางการซิงค์ และตัวกรองด้วยตนเอง</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>เสร็จ</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>ไฟล์ที่มีขนาดใหญ่กว่า %1 MB จะไม่ถูกซิงค์</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>เปิดโฟลเดอร์</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>ไม่สามารถซิงค์โฟลเดอร์นี้ได้ โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>ค้นหาฮับในเครือข่ายภายใน</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>คุณมีสิทธิ์อ่านโฟลเดอร์ที่แชร์นี้เท่านั้น ไฟล์จะถูกดาวน์โหลดแต่ไม่ถูกอัปโหลด</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>ดูคำแนะนำเพิ่มเติมได้ใน&lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;บทแนะนำ&lt;/a&gt;</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>โฟลเดอร์นี้อยู่ภายในหรืออยู่เหนือโฟลเดอร์ที่ซิงค์อยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>เปิดไฟล์</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>คอมพิวเตอร์เครื่องนี้เชื่อมโยงกับฮับ “%1” อยู่แล้ว</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>โฟลเดอร์ชื่อ “Tessaly” จะถูกสร้างที่ตำแหน่งนี้</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>หากดำเนินการต่อ การเชื่อมโยงที่มีอยู่จะถูกแทนที่</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>ฮับออฟไลน์อยู่</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>โฟลเดอร์โฮม</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>ไม่สามารถสร้างลิงก์ได้เนื่องจาก Norvik ไม่พร้อมใช้งานบนฮับ</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>ใบรับรอง SSL ของฮับเปลี่ยนไปแล้ว โปรดยืนยันใบรับรองใหม่</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>ตั้งค่าโฟลเดอร์ที่จะซิงค์</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>ทิศทางการซิงค์ไม่ตรงกับสิทธิ์ของคุณในโฟลเดอร์ระยะไกล</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>ที่อยู่ IP ของคอมพิวเตอร์เครื่องนี้ถูกฮับบล็อก โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>เมื่อไฟล์ถูกเปลี่ยนแปลงทั้งสองฝั่ง:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>ยินดีต้อนรับสู่ตัวช่วยสร้างการตั้งค่า</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>หน้าสุดท้าย</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>หน้าแรก</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 หน้าก่อนหน้า</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 หน้าถัดไป</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>กำลังเลิกเชื่อมโยง...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>พยายามไม่สำเร็จหลายครั้งเกินไป โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>ไม่สามารถตรวจสอบโฟลเดอร์ได้เนื่องจากการเชื่อมต่อกับฮับล้มเหลว</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>โฟลเดอร์ที่แชร์ไม่มีอยู่บนฮับอีกต่อไป</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <translation>โฟลเดอร์ซิงค์</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>เก็บเวอร์ชันที่แก้ไขล่าสุดไว้</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>การซิงค์สองทาง</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>เลือกว่าจะซิงค์โฟลเดอร์ใดบนฮับกับโฟลเดอร์ใดบนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>โฟลเดอร์ที่แชร์</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>ขอสิทธิ์เข้าถึงเทมเพลต Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>โฟลเดอร์นี้ถูกใช้โดยงานซิงค์อื่นบนคอมพิวเตอร์เครื่องนี้อยู่แล้ว</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <translation>%1 ขอสิทธิ์เข้าถึงเทมเพลต Bureau “%2”</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>ไม่สามารถตรวจสอบโฟลเดอร์ได้เนื่องจากใบรับรอง SSL ของฮับเปลี่ยนไปแล้ว</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>โปรดป้อนรหัสยืนยัน</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>รหัสยืนยันไม่ถูกต้อง โปรดลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>ป้อนรหัสยืนยัน 6 หลัก</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>ชั่วโมง</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>โควตาพื้นที่เก็บข้อมูลของคุณบนโวลุ่มของโฟลเดอร์นี้เต็มแล้ว</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>ไม่สามารถตรวจสอบโฟลเดอร์ได้เนื่องจากใบรับรอง SSL ของฮับไม่น่าเชื่อถือ</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>ไม่สามารถตรวจสอบโฟลเดอร์ได้เนื่องจากเกิดข้อผิดพลาดของระบบบนฮับ</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>ซิงค์</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>เก็บเวอร์ชันบนฮับไว้เสมอ</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>เปลี่ยนชื่อไฟล์ที่ขัดแย้งกันและเก็บไว้ทั้งสองเวอร์ชัน</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>สรุป</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) ขอสิทธิ์เข้าถึงระดับ %3 สำหรับเทมเพลต Bureau “%4”</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>เนื้อหาของทั้งสองโฟลเดอร์จะถูกผสานเข้าด้วยกัน โดยไม่มีการลบไฟล์ใดๆ</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>บัญชี</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>รายการการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>ฮับที่เชื่อมต่ออยู่</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>คัดลอกลิงก์สำหรับแชร์</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>เอาสิทธิ์ของผู้ใช้รายนี้ออก</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>กลุ่ม: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>เปิดเว็บพอร์ทัลของ Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>คอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>ฮับที่เชื่อมโยง</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>งานซิงค์สำหรับไฟล์ที่ผู้อื่นแชร์กับคุณ</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>แท็บไฟล์ที่เปลี่ยนแปลงล่าสุด</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>บทแนะนำหน้า 2: ซิงค์ไฟล์ของคุณ</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>บทแนะนำหน้า 3: ติดตามการเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>บทแนะนำหน้า 4: แชร์กับผู้อื่น</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>เลือกสิทธิ์การแชร์</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly ช่วยให้ไฟล์บนคอมพิวเตอร์ของคุณและบนฮับตรงกันเสมอ</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ชั่วโมง</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>ฮับ</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>เปิดโฟลเดอร์ของฉัน</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>ไม่พบโฟลเดอร์ที่แชร์</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>เวอร์ชัน %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>ฮับกำหนดให้ใช้การยืนยันตัวตนแบบ 2 ปัจจัย โปรดตั้งค่าในเว็บพอร์ทัลแล้วลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>โควตาของโฟลเดอร์ที่แชร์เต็มแล้ว</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>บางช่องมีค่าที่ไม่ถูกต้อง โปรดตรวจสอบช่องที่ถูกเน้นไว้</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>ทิศทางการซิงค์</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <translation>มีบางอย่างผิดพลาดในงานหนึ่งของคุณ เปิดหน้าต่างหลักเพื่อดูรายละเอียด</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>เฉพาะโฟลเดอร์ที่แชร์ซึ่งเปิดใช้งานใน Tessaly Server เท่านั้นที่แสดงอยู่ที่นี่</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>คุณไม่มีสิทธิ์เข้าถึงโฟลเดอร์นี้</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>ที่อยู่</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>หมดอายุหลังจาก</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>ไม่มีคำสั่งที่ใช้ได้</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>ชื่อผู้ใช้หรือรหัสผ่านไม่ถูกต้อง โปรดลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>ป้อนชื่อไฟล์แบบเต็ม เช่น “desktop.ini” แล้วกด Enter</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>มีโฟลเดอร์ชื่อนี้อยู่แล้ว โปรดเลือกชื่ออื่น</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>เปรียบเทียบแอตทริบิวต์ทั้งหมดของไฟล์เมื่อค้นหาการเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>ใช้ได้จนถึง</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>ช่องนี้ไม่สามารถเว้นว่างได้</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>จำกัดการเข้าถึง</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>แสดงคำสั่งการซิงค์ในเมนูบริบทของไฟล์และโฟลเดอร์</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>บริการโฟลเดอร์โฮมของผู้ใช้ถูกปิดใช้งานบนฮับ โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>การอัปเดตล้มเหลว โปรด&lt;a href=&quot;%1&quot;&gt;ดาวน์โหลดเวอร์ชันล่าสุด&lt;/a&gt;แล้วติดตั้งด้วยตนเอง</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>นำไปใช้และคัดลอกลิงก์</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>จำกัดจำนวนครั้งที่เข้าชม</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>ใช้ได้ตั้งแต่</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>ฮับต้องการไคลเอนต์เวอร์ชันใหม่กว่านี้ คุณต้องการอัปเดตตอนนี้หรือไม่</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>โฟลเดอร์ระยะไกลอยู่บนโวลุ่มที่ไม่ได้เมานต์</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>แสดงข้อมูล</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>เพิ่มชื่อไฟล์</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>โฟลเดอร์บนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>เลือกภาษา</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>รายการเวอร์ชันของไฟล์ที่กำลังดาวน์โหลด</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>กำหนดระยะเวลาที่ใช้ได้เอง</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>แสดงบทแนะนำของ %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>เปลี่ยนโฟลเดอร์ซิงค์</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>โฟลเดอร์ซิงค์ที่เชื่อมโยง</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>รีเฟรชประวัติ</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>เดือนก่อนหน้า</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>ป้อนคำสำคัญเพื่อค้นหาประวัติ</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>เพิ่มโฟลเดอร์</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>ปฏิทิน</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>เดือนถัดไป</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>เลือกประเภทเหตุการณ์</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>งานซิงค์ “%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>โฟลเดอร์บนฮับ</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>หน้าต่างการตั้งค่า</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>ปิดบทแนะนำ</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>ยกเลิกการดาวน์โหลดนี้</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>เอาการดาวน์โหลดนี้ออกจากรายการ</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>รหัสผ่านของคุณหมดอายุแล้ว โปรดเปลี่ยนรหัสผ่านในเว็บพอร์ทัลแล้วลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>ผู้แก้ไข</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>เปลี่ยนชื่อบนคอมพิวเตอร์เครื่องนี้แล้ว</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>เปลี่ยนชื่อบนฮับแล้ว</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>โปรดป้อนอักขระไม่เกิน %1 ตัว</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>นี่ไม่ใช่บัญชีที่ใช้สร้างงานนี้ โปรดลงชื่อเข้าใช้ในชื่อ “%1”</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>ข้อมูลฮับ</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>บริการรีเลย์ Ferrylink ถูกปิดใช้งานบนฮับ</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>ไม่สามารถดาวน์โหลด “%1” ได้ โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>การลงชื่อเข้าใช้ฮับล้มเหลว โปรดตรวจสอบชื่อผู้ใช้และรหัสผ่านของคุณ</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>การแจ้งเตือน</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>แสดงความคิดเห็นใน</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>เปิดในเว็บพอร์ทัล</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>ตั้งค่า</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>เปิดโฟลเดอร์ที่ซิงค์</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>คุณมีสิทธิ์อ่านโฟลเดอร์นี้เท่านั้น %1 จะไม่อัปโหลดการเปลี่ยนแปลงของคุณ</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 เชื่อมโยงกับฮับแล้ว และจะคอยซิงค์ไฟล์ของคุณให้ตรงกันเสมอ</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>โปรแกรมติดตั้งรวบรวมข้อมูลทั้งหมดที่จำเป็นแล้ว</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 พร้อมแล้ว</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 กำลังทำงานอยู่แล้ว</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>%1 ช่วยให้ไฟล์บนคอมพิวเตอร์ของคุณและบนฮับตรงกันเสมอ</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>ดูตัวอย่างและแสดงความคิดเห็น</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <translation>ไม่สามารถอัปเดต %1 ได้ โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>ติดตั้ง Kelvane Quay Client เวอร์ชันใหม่กว่าไว้แล้ว โปรแกรมติดตั้งจะปิดลงตอนนี้</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>ใบรับรอง SSL ของฮับเปลี่ยนไปแล้ว หากคุณไม่ได้คาดว่าจะมีการเปลี่ยนแปลงนี้ โปรดติดต่อผู้ดูแลระบบของคุณก่อนดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <translation>เลือกสิ่งที่จะซิงค์ด้วยงานใหม่</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>โฟลเดอร์นี้เป็นของ Dropbox หากซิงค์ด้วย %1 อีก อาจทำให้ไฟล์ขัดแย้งกัน</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>การเปลี่ยนแปลงของคุณจะสูญหาย คุณต้องการดำเนินการต่อหรือไม่</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>บทแนะนำของ %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>ไม่มี Ferrylink ID นี้ หรือ %1 ไม่ได้ทำงานอยู่บนฮับ</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>เฉพาะโฟลเดอร์ที่แชร์ซึ่งเปิดใช้งานใน %1 เท่านั้นที่แสดงอยู่ที่นี่</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>เริ่ม %1 เมื่อฉันลงชื่อเข้าใช้คอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 กำลังเริ่มต้น...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>ฮับและ %1 ไม่สามารถสื่อสารกันได้ โปรดอัปเดตทั้งสองเป็นเวอร์ชันล่าสุด</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>%1 เวอร์ชันนี้เก่าเกินไปสำหรับฮับ โปรดอัปเดต</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>เวอร์ชันไม่ตรงกัน</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>ดิสก์เต็ม โปรดเพิ่มพื้นที่ว่างบนคอมพิวเตอร์เครื่องนี้เพื่อให้ %1 ทำงานต่อได้</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>%1 พบปัญหา โปรดรีสตาร์ทโปรแกรม</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>แท็บการแจ้งเตือน</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>โฟลเดอร์ไม่ว่างเปล่า %1 จะผสานไฟล์ในโฟลเดอร์กับไฟล์บนฮับ</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>ดาวน์โหลดเฉพาะการเปลี่ยนแปลงจาก %1 เท่านั้น</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>ตั้งค่า %1 แล้ว เปิดโฟลเดอร์ของคุณเพื่อเริ่มทำงาน</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>บทแนะนำหน้า 1: ยินดีต้อนรับสู่ Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>ติดตั้ง Kelvane Quay Client เวอร์ชันนี้ไว้แล้ว คุณต้องการติดตั้งอีกครั้งหรือไม่</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <translation>ตั้งค่า %1 เพื่อซิงค์และสำรองข้อมูลไฟล์บนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>เกือบเสร็จแล้ว! ไฟล์ของคุณจะพร้อมใช้งานใน Tessaly Server ในไม่ช้า</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>เกือบเสร็จแล้ว! ไฟล์ของคุณจะพร้อมใช้งานบนคอมพิวเตอร์เครื่องนี้ในไม่ช้า</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>การดำเนินการล้มเหลว โปรดลองอีกครั้ง</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>โฟลเดอร์ชื่อ “Kelvane Quay” จะถูกสร้างที่ตำแหน่งนี้</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>ติดตั้ง Tessaly เวอร์ชันนี้ไว้แล้ว คุณต้องการติดตั้งอีกครั้งหรือไม่</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>ติดตั้ง Tessaly เวอร์ชันใหม่กว่าไว้แล้ว โปรแกรมติดตั้งจะปิดลงตอนนี้</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <translation>บทแนะนำของ Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>สัปดาห์</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>โฟลเดอร์นี้เป็นของ Dropbox หากซิงค์ด้วย Tessaly อีก อาจทำให้ไฟล์ขัดแย้งกัน</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly พร้อมแล้ว</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <translation>Tessaly กำลังเริ่มต้น...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>ไม่มี Ferrylink ID นี้ หรือ Tessaly Server ไม่ได้ทำงานอยู่บนฮับ</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Tessaly เวอร์ชันนี้เก่าเกินไปสำหรับฮับ โปรดอัปเดต</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <translation>สิทธิ์การแชร์</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Tessaly Server บนฮับเก่าเกินไปสำหรับไคลเอนต์นี้ โปรดขอให้ผู้ดูแลระบบของคุณอัปเดต</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>แสดงบทแนะนำของ Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <translation>เริ่ม Tessaly เมื่อฉันลงชื่อเข้าใช้คอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Tessaly พบปัญหา โปรดรีสตาร์ทโปรแกรม</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>ตั้งค่าเสร็จสมบูรณ์แล้ว ขณะนี้กำลังซิงค์ไฟล์ของคุณ</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <translation>คลิกไอคอนถาดระบบได้ทุกเมื่อเพื่อดูสถานะและเปลี่ยนการตั้งค่า</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>โฟลเดอร์ไม่ว่างเปล่า Tessaly จะผสานไฟล์ในโฟลเดอร์กับไฟล์บนฮับ</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Tessaly กำลังทำงานอยู่แล้ว</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>ตั้งค่า Tessaly แล้ว เปิดโฟลเดอร์ของคุณเพื่อเริ่มทำงาน</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>คุณมีสิทธิ์อ่านโฟลเดอร์นี้เท่านั้น Tessaly จะไม่อัปโหลดการเปลี่ยนแปลงของคุณ</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>เปิด Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>มีเวอร์ชัน %1 ให้ใช้งานแล้ว คลิกที่นี่เพื่ออัปเดต</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>หากต้องการใช้การซิงค์แบบเลือก โปรดขอให้ผู้ดูแลระบบของคุณอัปเดต Tessaly Server บนฮับ</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>ล้าง</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>วันที่และเวลา</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>ดิสก์นี้มีพื้นที่ไม่เพียงพอ Tessaly ต้องการพื้นที่อย่างน้อย %1 MB</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Tessaly เชื่อมโยงกับฮับแล้ว และจะคอยซิงค์ไฟล์ของคุณให้ตรงกันเสมอ</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly เชื่อมโยงกับฮับเดียวกันด้วยบัญชีเดียวกันได้เพียงครั้งเดียว</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>ตั้งค่า Tessaly เพื่อซิงค์ไฟล์บนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>เพิ่งเริ่มใช้ Tessaly ใช่ไหม อ่าน&lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;คู่มือเริ่มต้นใช้งานด่วน&lt;/a&gt;ก่อน</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>แสดงความคิดเห็นได้</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>ผู้ใช้ฮับที่มีลิงก์สามารถดูได้</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>ผู้ใช้ฮับที่มีลิงก์สามารถแก้ไขได้</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>เฉพาะผู้ที่ได้รับเชิญเท่านั้นที่เปิดลิงก์ได้</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>ทุกคนที่มีลิงก์สามารถแสดงความคิดเห็นได้</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>ทุกคนที่มีลิงก์สามารถดูได้</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>ผู้ใช้ฮับที่มีลิงก์สามารถแสดงความคิดเห็นได้</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>ทุกคนที่มีลิงก์สามารถแก้ไขได้</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>ดูได้</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>จัดการได้</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>แก้ไขได้</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>ไม่สามารถเปิดเว็บพอร์ทัลได้ โปรดตรวจสอบการเชื่อมต่อกับฮับ</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>เชิญผู้คน</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>ไม่มีสิทธิ์เข้าถึง</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>ไม่มีโฟลเดอร์ที่แชร์</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ดาวน์โหลด</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>การแชร์แบบสาธารณะถูกปิดใช้งานบนฮับ</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>การแชร์ถูกปิดใช้งาน โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>กู้คืน</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) ขอสิทธิ์เข้าถึงระดับ %3 สำหรับสเปรดชีต Grida “%4”</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>ผู้ที่มีลิงก์จะไม่สามารถเปิดไฟล์ได้อีกต่อไป</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 แชร์สเปรดชีต Grida “%2” กับคุณ</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>ไม่มีข้อมูล</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>แชร์</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>ไม่มีไฟล์หรือโฟลเดอร์นี้</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>คุณไม่มีสิทธิ์ดำเนินการนี้</translation>
    </message>
    <message>
        <source>Weekends</source>
        <translation>วันหยุดสุดสัปดาห์</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>ผู้ใช้ฮับ</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>เฉพาะผู้ที่ได้รับเชิญ</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>การแสดงผล</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>ทุกคนที่มีลิงก์</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>กำหนดวันหมดอายุ</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>ผู้ใช้และกลุ่ม</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>แสดงโฟลเดอร์ที่ซิงค์ในแถบด้านข้างของตัวจัดการไฟล์</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>ทำงานในโฟลเดอร์ที่ซิงค์ได้เหมือนโฟลเดอร์ทั่วไป การเปลี่ยนแปลงของคุณจะถูกถ่ายโอนไปยังฮับทันที</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>คอมพิวเตอร์ของคุณ</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>ไฟล์ทั้งหมดของคุณ ทุกที่ทุกเวลา</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>ประหยัดพื้นที่ด้วยการซิงค์ตามต้องการ</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>ไฟล์ทั้งหมดจะปรากฏบนคอมพิวเตอร์ของคุณ แต่จะใช้พื้นที่เมื่อคุณเปิดไฟล์เท่านั้น</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>ออนไลน์เท่านั้น</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>พร้อมใช้งานบนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>กล่าวถึงคุณใน</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>ขอสิทธิ์เข้าถึง</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 แชร์ไฟล์ “%2” กับคุณ</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>แชร์กับคุณ:</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>การแชร์</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>คำขอสิทธิ์เข้าถึง</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>ความคิดเห็น</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>แชร์กับฉัน</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>การกล่าวถึง</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>อัปโหลดเท่านั้น</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>เก็บไฟล์บนฮับไว้เมื่อไฟล์ถูกลบออกจากคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>ภายหลัง</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>ดาวน์โหลด “%1” แล้ว</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>ไฟล์ของคุณเป็นปัจจุบันบนอุปกรณ์ทุกเครื่อง</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <translation>ไฟล์ของคุณยังพร้อมใช้งานใน&lt;a href=&quot;%1&quot;&gt;เว็บพอร์ทัล&lt;/a&gt;อีกด้วย</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>ขอแสดงความยินดี!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>คุณพร้อมที่จะทำงานกับ Tessaly แล้ว</translation>
    </message>
    <message>
        <source>Enable later</source>
        <translation>เปิดใช้งานภายหลัง</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>เปิดใช้งานเลย</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>ไฟล์ที่แชร์กับคุณ</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>สร้างงานซิงค์</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>ไฟล์ของฉันและโฟลเดอร์ทีม</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>ไฟล์ที่แชร์กับฉัน</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>นี่ไม่ใช่ฮับที่ Tessaly เคยเชื่อมโยงไว้ โปรดเชื่อมโยงคอมพิวเตอร์เครื่องนี้อีกครั้ง</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>ฮับและ Tessaly ไม่สามารถสื่อสารกันได้ โปรดอัปเดตทั้งสองเป็นเวอร์ชันล่าสุด</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>ไม่พลาดทุกการเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>ดิสก์เต็ม โปรดเพิ่มพื้นที่ว่างบนคอมพิวเตอร์เครื่องนี้เพื่อให้ Tessaly ทำงานต่อได้</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>โฟลเดอร์ทีม</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>ดาวน์โหลดเฉพาะการเปลี่ยนแปลงจาก Tessaly Server เท่านั้น</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>ไม่สามารถอัปเดต Tessaly ได้ โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>ไอคอนถาดระบบจะแสดงสิ่งที่กำลังซิงค์ และแจ้งให้คุณทราบเมื่อผู้อื่นแชร์ไฟล์กับคุณหรือแสดงความคิดเห็นในไฟล์</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <translation>แชร์ได้ในไม่กี่วินาที</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>คลิกขวาที่ไฟล์หรือโฟลเดอร์ สร้างลิงก์ แล้วกำหนดว่าใครเปิดได้และเปิดได้นานเท่าใด</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) ขอสิทธิ์เข้าถึงระดับ %3 สำหรับงานนำเสนอ Pictra “%4”</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 แชร์โฟลเดอร์ “%2” กับคุณ</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) ขอสิทธิ์เข้าถึงระดับ %3 สำหรับโฟลเดอร์ “%4”</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) ขอสิทธิ์เข้าถึงระดับ %3 สำหรับไฟล์ “%4”</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) ขอสิทธิ์เข้าถึงระดับ %3 สำหรับเอกสาร Folia “%4”</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 แชร์เอกสาร Folia “%2” กับคุณ</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 แชร์งานนำเสนอ Pictra “%2” กับคุณ</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>การตั้งค่าความเป็นส่วนตัว</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>ป้องกันด้วยรหัสผ่าน</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>วันธรรมดา</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>โฟลเดอร์ชื่อ “%1” จะถูกสร้างสำหรับไฟล์ที่ผู้อื่นแชร์กับคุณ</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>เก็บไว้บนคอมพิวเตอร์เครื่องนี้เสมอ</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>ทุกประเภท</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>ความคืบหน้า</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>กำลังเชื่อมต่อ...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>งานซิงค์</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>ไฟล์จะถูกสำรองข้อมูลทันทีที่มีการเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>ตัวกรอง</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>ไฟล์จะถูกสำรองข้อมูลตามเวลาที่คุณกำหนด</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>การสำรองข้อมูลเสร็จสมบูรณ์แล้ว คอมพิวเตอร์จะปิดใน %1 วินาที</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>งานสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>ทำงานในวันต่อไปนี้</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>เชื่อมต่อกับฮับ</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>ปกป้องไฟล์บนคอมพิวเตอร์เครื่องนี้ด้วยการสำรองข้อมูลไปยังฮับ</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>ด้วยตนเอง: การสำรองข้อมูลจะทำงานเมื่อคุณสั่งเริ่มเท่านั้น</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>เวลาเริ่ม</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>ความถี่</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>เวลาสิ้นสุดล่าสุด</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>เวลาที่ทำงานล่าสุด</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>ผู้แสดงความคิดเห็น</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>เปลี่ยนผู้ที่เปิดลิงก์นี้ได้</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>อัปโหลดล่าสุด: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>การตั้งค่างาน</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>ต่อเนื่อง: ไฟล์จะถูกสำรองข้อมูลทุกครั้งที่มีการเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>เปิดในตัวจัดการไฟล์</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>เวลานี้อยู่ในวันถัดไป</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>ไม่สามารถดึงข้อมูลการแชร์ได้</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>ปลายทางการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>ไฟล์จะถูกสำรองข้อมูลเมื่อคุณคลิก “สำรองข้อมูลเลย”</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>อนุญาตให้ดาวน์โหลด</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>ตามกำหนดเวลา: การสำรองข้อมูลจะทำงานตามเวลาที่คุณกำหนด</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>กำหนดเวลาสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>ผู้จัดการ</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>ผู้ดูตัวอย่าง</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>สร้างงานสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>ไฟล์ที่มีชื่อหรือนามสกุลอยู่ในรายการนี้จะถูกข้าม</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>ซิงค์ไฟล์ชั่วคราว</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>คัดลอกไฟล์จากคอมพิวเตอร์เครื่องนี้ไปยังฮับทันทีหรือตามกำหนดเวลา</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>เลือกเวลาที่จะสำรองข้อมูลไฟล์</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>โปรดเลือกอย่างน้อยหนึ่งโฟลเดอร์ที่จะสำรองข้อมูล</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <translation>สำรองข้อมูล %1 ไฟล์ (%2) ไปยัง “%3” เมื่อ %4</translation>
    </message>
    <message>
        <source>History</source>
        <translation>ประวัติ</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>เริ่มสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>ไฟล์และโฟลเดอร์ที่ตรงกับกฎเหล่านี้จะไม่ถูกสำรองข้อมูล</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>ไม่ได้เลือกโฟลเดอร์</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>เพิ่มพื้นที่ว่าง</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>เลิกเก็บไว้บนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>วันที่เลือก</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>เมื่อการสำรองข้อมูลเสร็จสิ้น</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>เลือกโฟลเดอร์บน “%1”</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>เลือกโฟลเดอร์บนฮับ</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>ทุก</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>ข้ามไฟล์และโฟลเดอร์ที่ชื่อขึ้นต้นด้วยจุด</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <translation>เริ่มซิงค์</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากไม่สามารถตรวจสอบใบรับรอง SSL ของฮับได้</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>ไม่สามารถลงทะเบียนงานบนฮับได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากฮับที่ใช้ที่อยู่นี้เปลี่ยนไปแล้ว</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากฮับและไคลเอนต์ไม่สามารถสื่อสารกันได้ โปรดอัปเดตทั้งสอง</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจาก Tessaly เวอร์ชันนี้เก่าเกินไปสำหรับฮับ</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <translation>โปรดอัปเดต Tessaly เป็นเวอร์ชัน %1 หรือใหม่กว่า</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>โปรดตรวจสอบชื่อผู้ใช้และรหัสผ่านของคุณแล้วลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>โปรดตรวจสอบว่าฮับเปิดอยู่และคอมพิวเตอร์เครื่องนี้เชื่อมต่อกับเครือข่ายแล้ว</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>ฮับบล็อกที่อยู่ IP ของคอมพิวเตอร์เครื่องนี้ โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>ใบรับรอง SSL ของฮับไม่ถูกต้อง โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>โปรดขอให้ผู้ดูแลระบบของคุณอัปเดต Tessaly Server บนฮับ</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>ยังไม่ได้สำรองข้อมูล</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>ดูแลให้โฟลเดอร์บนคอมพิวเตอร์เครื่องนี้และโฟลเดอร์บนฮับตรงกันเสมอ</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;เรียนรู้เพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>เลือกวันและเวลาที่การสำรองข้อมูลจะทำงาน</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>เรียกใช้การสำรองข้อมูลที่พลาดไปโดยเร็วที่สุด</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <translation>เลือกโฟลเดอร์สำหรับแต่ละฝั่ง</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>ป้อนที่อยู่ของฮับและบัญชีของคุณ</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>โปรดตรวจสอบการตั้งค่าของงานใหม่</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>เส้นทาง</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากการลงชื่อเข้าใช้ฮับล้มเหลว</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>ไม่รองรับเวอร์ชันของแพ็กเกจบนฮับ โปรดขอให้ผู้ดูแลระบบของคุณอัปเดต</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากฮับบล็อกที่อยู่ IP ของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากแพ็กเกจบนฮับเก่าเกินไปสำหรับไคลเอนต์นี้</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <translation>โฟลเดอร์ที่เลือกบางโฟลเดอร์ไม่มีอยู่แล้ว ยกเลิกการเลือกเพื่อดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>ทิศทางการซิงค์ไม่ตรงกัน</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>พร้อมติดตั้ง Kelvane Quay Client แล้ว คลิก “ติดตั้ง” เพื่อเริ่ม หรือ “ย้อนกลับ” เพื่อตรวจสอบการตั้งค่าของคุณ</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <translation>เลือกประเภทงาน</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>ทำงานกับไฟล์เดียวกันบนคอมพิวเตอร์ทุกเครื่องของคุณ</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>เก็บสำเนาไฟล์ของคุณไว้อย่างปลอดภัยบนฮับ</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>ลงชื่อเข้าใช้ฮับที่จะเก็บข้อมูลสำรองของคุณ</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <translation>ตั้งค่าโฟลเดอร์ซิงค์ของคุณ</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>โปรดเพิ่มพื้นที่ว่างบนดิสก์ของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>เลือกโฟลเดอร์บนฮับที่คุณต้องการซิงค์</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>ไฟล์จะถูกดาวน์โหลดเมื่อคุณเปิดเท่านั้น ซึ่งช่วยประหยัดพื้นที่บนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>การซิงค์ตามต้องการใช้ไม่ได้กับโฟลเดอร์ที่เลือกหรือระบบปฏิบัติการของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>ไม่ได้เมานต์โฟลเดอร์ที่แชร์</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>อัปโหลดเฉพาะการเปลี่ยนแปลงไปยัง %1 เท่านั้น</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>ซิงค์ไฟล์ที่ผู้อื่นแชร์กับฉัน</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>สำรองข้อมูลไฟล์ชั่วคราว</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>ไฟล์ที่ผู้อื่นแชร์กับคุณจะปรากฏในโฟลเดอร์แยกต่างหากบนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>เว็บพอร์ทัล</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>โควตาพื้นที่เก็บข้อมูลเต็มแล้ว</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>โฟลเดอร์โฮมถูกปิดใช้งาน</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>จ.</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>พฤ.</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>ส.</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <translation>ไม่พบโฟลเดอร์ภายในเครื่อง</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>ไม่สามารถเริ่มงานได้ โปรดรีสตาร์ทแอปพลิเคชัน</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>ไม่ได้เมานต์โฟลเดอร์ที่แชร์ของงานนี้บนฮับ โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>คุณไม่มีสิทธิ์เข้าถึงโฟลเดอร์ที่แชร์ของงานนี้อีกต่อไป</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <translation>ไม่ได้เชื่อมต่อไดรฟ์</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>เกือบเสร็จแล้ว! ไฟล์ของคุณจะพร้อมใช้งานใน %1 ในไม่ช้า</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>ป้อน 0 หากไม่ต้องการกำหนดขีดจำกัด</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>ศ.</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>บทบาท</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>อา.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>อ.</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>พ.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>วันศุกร์</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>วันจันทร์</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>วันเสาร์</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>วันอาทิตย์</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>วันพฤหัสบดี</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>วันอังคาร</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>วันพุธ</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>ฉันไม่ยอมรับข้อตกลงสิทธิ์การใช้งาน</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>ดิสก์เต็ม</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>การเริ่มต้นล้มเหลว</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>โฟลเดอร์ภายในเครื่องอาจถูกย้าย เปลี่ยนชื่อ หรือลบไปแล้ว</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>โควตาของโฟลเดอร์ที่แชร์เต็มแล้ว</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>โควตาของโฟลเดอร์ที่แชร์เต็มแล้ว โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>ไม่พบโฟลเดอร์ระยะไกล</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>โฟลเดอร์ระยะไกลอาจถูกย้าย เปลี่ยนชื่อ หรือลบไปแล้ว</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>สิทธิ์ของลิงก์</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>การสำรองข้อมูลครั้งถัดไป: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>แผนการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>ลิงก์สำหรับแชร์</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>แชร์ลิงก์</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>งานสำรองข้อมูลต้องใช้ %1 %2 หรือใหม่กว่าบนฮับ เวอร์ชันที่ติดตั้งอยู่คือ %3</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>คอมพิวเตอร์เครื่องนี้เชื่อมโยงกับฮับนี้ด้วยบัญชีเดียวกันอยู่แล้ว</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>กำลังโหลดโฟลเดอร์ที่แชร์...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>ไม่สามารถตรวจพบการเปลี่ยนแปลงบนไดรฟ์เครือข่ายได้ทันที การซิงค์จึงจะล่าช้าเล็กน้อย</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>ยินดีต้อนรับสู่ Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>คลิกไอคอน Tessaly ในถาดระบบเพื่อเปลี่ยนการตั้งค่า</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <translation>คลิกไอคอน %1 ในถาดระบบเพื่อเปลี่ยนการตั้งค่า</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>การซิงค์หยุดลงเนื่องจากโวลุ่มของฮับเต็ม</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>แพ็กเกจบนฮับเก่าเกินไปสำหรับไคลเอนต์</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <translation>กำลังเชื่อมโยงกับฮับ...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>ไฟล์ทั้งหมดเป็นปัจจุบัน</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>ดูตัวอย่าง</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>เป็นปัจจุบัน</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>ลิงก์โฟลเดอร์</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>วันหมดอายุ</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>คุณพร้อมที่จะทำงานกับ %1 แล้ว</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>ตอนนี้</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>อัปโหลด</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>โปรดอัปเดต %1 เป็นเวอร์ชัน %2 หรือใหม่กว่า</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>เลือกไฟล์ที่งานใหม่จะซิงค์</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>เปิดเว็บพอร์ทัลของ %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจาก %1 เวอร์ชันนี้เก่าเกินไปสำหรับฮับ</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>โปรดขอให้ผู้ดูแลระบบของคุณอัปเดต %1 บนฮับ</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>โฟลเดอร์ชื่อ “%1” จะถูกสร้างที่ตำแหน่งนี้</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>ไม่สามารถสร้างโฟลเดอร์ “%1” บนคอมพิวเตอร์เครื่องนี้ได้</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>ดูไฟล์ทั้งหมดของคุณได้โดยไม่ทำให้ดิสก์เต็ม แต่ละไฟล์จะถูกดาวน์โหลดเมื่อคุณเปิด</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>เปิดเว็บพอร์ทัล Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>ติดตั้ง Tessaly เวอร์ชันใหม่กว่าไว้แล้ว โปรดเอาออกก่อนติดตั้ง Kelvane Quay Client</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>บทแนะนำหน้า 1: ยินดีต้อนรับสู่ %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>ประเภทงาน</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>เลือก</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>พร้อมติดตั้งคุณลักษณะซิงค์และสำรองข้อมูลของ Kelvane Quay Client แล้ว คลิก “ติดตั้ง” เพื่อเริ่ม หรือ “ย้อนกลับ” เพื่อตรวจสอบการตั้งค่าของคุณ</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>เปิดใช้งานการซิงค์ตามต้องการ</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>ไม่พบโฟลเดอร์การซิงค์ตามต้องการ “%1” โปรดตั้งค่างานนี้อีกครั้ง</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>การซิงค์ตามต้องการ</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>ลองใช้การซิงค์ตามต้องการ</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>แสดงความคิดเห็น</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>โวลุ่มของฮับเต็ม โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>โปรดป้อนวันที่ที่ถูกต้อง</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>เวลาสิ้นสุดต้องอยู่หลังเวลาเริ่ม</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <translation>ป้อนชื่อไฟล์หรือนามสกุลไฟล์ เช่น “*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>บทบาทและสิทธิ์</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>แก้ไข</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>เพิ่มพื้นที่ว่างแล้ว</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>พร้อมใช้งานบนคอมพิวเตอร์เครื่องนี้แล้ว</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>การซิงค์ตามต้องการต้องใช้โฟลเดอร์บนไดรฟ์ NTFS ที่ไม่ใช่ไดรฟ์เครือข่ายหรือไดรฟ์แบบถอดได้</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>เก็บไฟล์ไว้แบบออนไลน์จนกว่าคุณจะต้องการใช้ &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;การซิงค์ตามต้องการทำงานอย่างไร&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>ดิสก์นี้มีพื้นที่ไม่เพียงพอ %1 ต้องการพื้นที่อย่างน้อย %2 MB</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>ซิงค์โฟลเดอร์โฮมของคุณและโฟลเดอร์ทีมที่คุณมีสิทธิ์เข้าถึง</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>หากคุณปิดตัวเลือกนี้ โฟลเดอร์ที่เก็บไฟล์ที่ผู้อื่นแชร์กับคุณจะถูกเอาออกจากคอมพิวเตอร์เครื่องนี้ คุณต้องการดำเนินการต่อหรือไม่</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>ซิงค์ไฟล์ที่ผู้อื่นแชร์กับคุณ เพื่อให้คุณเปิดได้เหมือนไฟล์ของคุณเอง</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>เปิดใช้งานการซิงค์ตามต้องการสำหรับงานนี้</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากบัญชีของคุณไม่ได้รับอนุญาตให้ใช้แพ็กเกจบนฮับ</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>ซิงค์ไฟล์และโฟลเดอร์ที่ผู้ใช้อื่นแชร์กับคุณ</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>ดิสก์ของคุณใกล้เต็มแล้ว เปิดใช้งานการซิงค์ตามต้องการเพื่อเพิ่มพื้นที่ว่าง</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>ทุกสิ่งที่ผู้อื่นแชร์กับคุณ อยู่ในโฟลเดอร์เดียว</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>โปรดขอให้ผู้ดูแลระบบของคุณให้สิทธิ์คุณใช้แพ็กเกจนี้</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>ไคลเอนต์นี้ต้องใช้ %1 %2 หรือใหม่กว่าบนฮับ โปรดขอให้ผู้ดูแลระบบของคุณอัปเดต</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>คุณไม่มีสิทธิ์ใช้แพ็กเกจบนฮับ โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>ปลายทางนี้ถูกใช้โดยงานสำรองข้อมูลอื่นอยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <translation>%1 ไม่สามารถสื่อสารกับแพ็กเกจบนฮับได้ โปรดอัปเดตทั้งสองเป็นเวอร์ชันล่าสุด</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>เฉพาะคุณเท่านั้นที่เปิดลิงก์ได้</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>ยืนยันดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Tessaly ช่วยให้ไฟล์ของคุณตรงกันบนคอมพิวเตอร์ทุกเครื่องและปกป้องไฟล์ไว้บนฮับ</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>แชร์ไฟล์ด้วยลิงก์ คุณกำหนดได้ว่าใครดูหรือแก้ไขได้</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>เริ่มการแนะนำการใช้งาน</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>เพิ่งเริ่มใช้ %1 ใช่ไหม อ่าน&lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;คู่มือเริ่มต้นใช้งานด่วน&lt;/a&gt;ก่อน</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>โปรดป้อนชื่อผู้ใช้ของคุณ</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>ไฟล์ทั้งหมดของงานนี้จะถูกดาวน์โหลดมายังคอมพิวเตอร์เครื่องนี้ คุณต้องการดำเนินการต่อหรือไม่</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>ยินดีต้อนรับสู่ Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>แชร์กับผู้อื่น</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>เปิดประวัติเพื่อดูว่าใครเปลี่ยนแปลงไฟล์และเมื่อใด</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>ดูแลให้ไฟล์ของคุณตรงกันบนคอมพิวเตอร์ทุกเครื่องด้วยการซิงค์กับฮับ</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <translation>กำลังประมวลผล %1 ไฟล์</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>%1 และไคลเอนต์มีเวอร์ชันต่างกัน โปรดอัปเดตทั้งสองเป็นเวอร์ชันเดียวกัน</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>ไฟล์ที่กำลังประมวลผล: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <translation>กำลังประมวลผล %1 ไฟล์</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>โวลุ่มของโฟลเดอร์นี้ไม่รองรับโควตา</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>โควตาพื้นที่เก็บข้อมูลส่วนตัวของคุณเต็มแล้ว</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <translation>โฟลเดอร์โฮมของคุณใช้ไป %1 จาก %2 และโฟลเดอร์ที่แชร์ใช้ไป %3 จาก %4</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <translation>โควตาของโฟลเดอร์ที่แชร์ “%1” เต็มแล้ว</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>บางโฟลเดอร์ใช้โควตาเต็มแล้ว</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>ไม่สามารถกู้คืนเวอร์ชันนี้ได้เนื่องจากไฟล์ถูกยกเว้นโดยตัวกรอง</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>เลือกโฟลเดอร์ที่จะสำรองข้อมูลและตำแหน่งที่จะเก็บข้อมูลสำรอง</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <translation>เลือกสิ่งที่จะสำรองข้อมูล</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากบัญชีของคุณถูกปิดใช้งานบนฮับ</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>กำลังซิงค์...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>โปรดขอให้ผู้ดูแลระบบของคุณเปิดใช้งานบัญชีของคุณ</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>บัญชีของคุณถูกปิดใช้งานบนฮับ โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>บัญชีถูกปิดใช้งาน</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>แสดงไอคอนบนไฟล์ที่ถูกยกเว้นโดยตัวกรอง</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>พื้นที่เก็บข้อมูล</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>กล่องโต้ตอบ</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>งานทั้งหมดกับฮับนี้จะถูกเอาออกจากคอมพิวเตอร์เครื่องนี้ ไฟล์จะถูกเก็บไว้ คุณต้องการดำเนินการต่อหรือไม่</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>การสำรองข้อมูลล้มเหลว โปรดลองอีกครั้ง</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>ไม่สามารถสร้างงานได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <translation>คุณไม่มีสิทธิ์เข้าถึงโฟลเดอร์ที่แชร์ “%1” อีกต่อไป</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>กำลังประมวลผล “%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>วัน</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>ไม่สามารถโหลดงานได้</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>การดำเนินการ</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>ไม่มีโฟลเดอร์ “%1”</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <translation>ปิดคอมพิวเตอร์</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>คุณไม่มีสิทธิ์ปิดคอมพิวเตอร์เครื่องนี้โดยอัตโนมัติ</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>การสำรองข้อมูลถูกยกเลิกแล้ว</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>การสำรองข้อมูลเสร็จสมบูรณ์แล้ว</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <translation>สำรองข้อมูล %1 ครั้งต่อวัน</translation>
    </message>
    <message>
        <source>times</source>
        <translation>ครั้ง</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>โหมดการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>คุณต้องการเริ่มการสำรองข้อมูลตอนนี้หรือไม่</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>หากคอมพิวเตอร์เครื่องนี้ปิดอยู่หรืออยู่ในโหมดสลีปในเวลาที่กำหนด การสำรองข้อมูลจะเริ่มทันทีที่เครื่องกลับมาทำงาน</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>โปรดเลือกอย่างน้อยหนึ่งวันในสัปดาห์</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>การสำรองข้อมูลล่าสุด: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>ทุกวัน</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>การสำรองข้อมูลด้วยตนเอง</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>วันละครั้ง</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>การสำรองข้อมูลต่อเนื่อง</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>การสำรองข้อมูลตามกำหนดเวลา</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>กำหนดแผนการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>กำลังสร้างสแนปช็อต...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>ไม่สามารถบันทึกแผนการสำรองข้อมูลได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>ป้อนขนาดตั้งแต่ 0 ถึง %1 MB ป้อน 0 หากไม่ต้องการกำหนดขีดจำกัด</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>การเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>แสดงกิจกรรมของงานนี้</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>นาที</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>แสดงรายการที่เอาออกแล้ว</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>ใช้ไปแล้ว</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>เดือน</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>ใช้ไป %1 จาก %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>งานเบื้องหลัง</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>หน้าต่างการตั้งค่าตัวกรอง</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>โปรดป้อนเวลาที่ถูกต้อง</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>ไม่ได้ซิงค์: ถูกยกเว้นโดยกฎของระบบ</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>ส่งออก</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>แก้ไขการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>ไม่ใช่ตอนนี้</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>สร้างเมื่อ</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>งานสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>งานซิงค์</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>ตัวกรอง</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>เปลี่ยนแปลงล่าสุด</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>สำรองข้อมูลเลย</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ไฟล์</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>เท่ากับ</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>น้อยกว่า</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>มากกว่า</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>เลือกโฟลเดอร์บนคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>โฟลเดอร์นี้เป็นส่วนหนึ่งของงานสำรองข้อมูลของ %1 อยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>โฟลเดอร์นี้ซิงค์โดย Kelvane Quay Client อยู่แล้วจึงไม่สามารถสำรองข้อมูลด้วยได้ โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>ที่อยู่ IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>ตอบกลับความคิดเห็นของคุณใน</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>เปิดสถานะการซิงค์</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>การตอบกลับ</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>ไม่ได้ซิงค์</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>Tessaly Server บนฮับเก่าเกินไปสำหรับ %1 โปรดขอให้ผู้ดูแลระบบของคุณอัปเดต</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>ไม่มีการเชื่อมต่อกับฮับ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>การแชร์ขั้นสูง</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>ไม่สามารถบันทึกการตั้งค่าการแชร์ได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>เปิดใช้งานการแชร์ขั้นสูง</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>เปิดใช้งานการป้องกันลิงก์</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>ถูกแชร์ด้วยการตั้งค่าขั้นสูงแล้ว</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>การแชร์แบบมีการป้องกัน</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>การป้องกันลิงก์</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>คุณแน่ใจหรือไม่ว่าต้องการเอาลิงก์ออก เมื่อเอาออกแล้วจะกู้คืนไม่ได้</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>เอาลิงก์นี้ออกหรือไม่</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>บันทึกล็อกของไคลเอนต์ลงในไฟล์ที่คุณสามารถส่งให้ฝ่ายสนับสนุนด้านเทคนิคได้</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>ป้อนคำสำคัญ</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>เอาลิงก์ออก</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>การแก้ไขปัญหา</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>บันทึกรายละเอียดเพิ่มเติมในล็อก เพื่อช่วยให้ฝ่ายสนับสนุนด้านเทคนิคค้นหาสาเหตุของปัญหา</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>ส่งออกล็อก</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>ลบไฟล์แล้ว</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>ไฟล์ที่ส่งออกประกอบด้วย:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>ข้อมูลเกี่ยวกับระบบปฏิบัติการของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>การบันทึกล็อกขั้นสูง</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>ล็อกขั้นสูงใช้พื้นที่บนดิสก์มากขึ้นและอาจทำให้ไคลเอนต์ทำงานช้าลง</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>คำชี้แจงความเป็นส่วนตัว</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>ล็อกและการตั้งค่าของไคลเอนต์ โดยไม่มีรหัสผ่าน</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>เปิดการบันทึกล็อกขั้นสูง</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>ไม่ได้ซิงค์: ถูกยกเว้นโดยตัวกรองของงาน</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>ไม่ได้ซิงค์: ไม่มีสิทธิ์</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>ข้อกำหนดการให้บริการ</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>โปรดป้อนขนาดที่น้อยกว่า %1 MB</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>โฟลเดอร์นี้เป็นส่วนหนึ่งของงานสำรองข้อมูลอื่นอยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>งานหยุดลงเนื่องจากเกิดข้อผิดพลาดที่ไม่คาดคิด โปรดรีสตาร์ทแอปพลิเคชัน</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>ไฟล์นี้ไม่มีเวอร์ชันก่อนหน้า</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>ไม่สามารถเปิดใช้งานการซิงค์ตามต้องการสำหรับงานนี้ได้</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>การเชื่อมต่อกับฮับล้มเหลว โปรดตรวจสอบที่อยู่และเครือข่ายของคุณ</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <translation>เพิ่มไฟล์แล้ว</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>ชื่อต้องไม่ขึ้นต้นหรือลงท้ายด้วยช่องว่าง</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>การสำรองข้อมูลหยุดลงเนื่องจากใบรับรอง SSL ของฮับเปลี่ยนไปแล้ว</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>ใบรับรอง SSL ของฮับหมดอายุแล้ว โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <translation>ขณะนี้ฮับสามารถทำดัชนีโฟลเดอร์โฮมทั้งหมดของคุณได้แล้ว</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>ขณะนี้คุณสามารถซิงค์โฟลเดอร์โฮมทั้งหมดของคุณกับคอมพิวเตอร์เครื่องนี้ได้แล้ว</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>ถูกล็อก</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik ถูกปิดใช้งาน</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>ฮับกำลังเตรียมโฟลเดอร์โฮมของคุณ โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>เปลี่ยนชื่อไฟล์แล้ว</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>อัปเดต “%1” แล้ว</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>ชื่อต้องไม่มีอักขระต่อไปนี้: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik ถูกปิดใช้งานบนฮับ โปรดติดต่อผู้ดูแลระบบของคุณ</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>บัญชีของคุณถูกปิดใช้งานบนฮับ จึงไม่สามารถตรวจสอบโฟลเดอร์ได้</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>เพิ่ม</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>ลบ</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>มีงานชื่อนี้อยู่แล้ว</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>ไม่สามารถใช้โฟลเดอร์ที่เลือกได้เลย โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <translation>ไม่มีโฟลเดอร์ที่ใช้ได้</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>ไฟล์จะอยู่บนฮับจนกว่าคุณจะเปิด &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;เรียนรู้เพิ่มเติมเกี่ยวกับการซิงค์ตามต้องการ&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>ชื่องานที่กำหนดเอง</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>ชื่อช่วยให้คุณแยกแยะงานต่างๆ ได้ โดยจะแสดงบนคอมพิวเตอร์เครื่องนี้เท่านั้น</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>เปิดหรือปิดการซิงค์ตามต้องการได้ในการตั้งค่าของงาน</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>ช่องนี้จำเป็นต้องกรอก</translation>
    </message>
</context>
</TS>
