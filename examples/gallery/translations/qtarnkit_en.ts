<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ClientUnlockWidget</name>
    <message>
        <source>Client Unlock</source>
        <translation>Client taken over</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Unlock</translation>
    </message>
    <message>
        <source>Client is unlocked,Please unlock</source>
        <translation>Another machine has taken over this client.</translation>
    </message>
    <message>
        <source>Preempt machine ip:</source>
        <translation>Its address: </translation>
    </message>
</context>
<context>
    <name>Form</name>
    <message>
        <source>Form</source>
        <translation>File manager</translation>
    </message>
    <message>
        <source>FileManager</source>
        <translation>File manager</translation>
    </message>
    <message>
        <source>MainPage</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>UpPage</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>QUIMessageBox</name>
    <message>
        <source>Confirm</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>QZelDialog</name>
    <message>
        <source>Confirm</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>QZelEncDialog</name>
    <message>
        <source>setSolPwd</source>
        <translation>Set password</translation>
    </message>
    <message>
        <source>setPwd</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>confirmPwd</source>
        <translation>Repeat it</translation>
    </message>
    <message>
        <source>pwdEmpty</source>
        <translation>Please enter a password</translation>
    </message>
    <message>
        <source>pwdDifferent</source>
        <translation>The passwords differ</translation>
    </message>
</context>
<context>
    <name>QZelFileDialog</name>
    <message>
        <source>sure</source>
        <translation>Your password</translation>
    </message>
    <message>
        <source>password</source>
        <translation>Password: </translation>
    </message>
    <message>
        <source>passwordWarning</source>
        <translation>Keep it safe: it cannot be recovered.</translation>
    </message>
    <message>
        <source>The file already exists. Whether to replace it?</source>
        <translation>The file already exists. Replace it?</translation>
    </message>
    <message>
        <source>Is storage overwritten?</source>
        <translation>The file already exists. Overwrite it?</translation>
    </message>
    <message>
        <source>The folder/%1 does not exist</source>
        <translation>The folder &quot;%1&quot; does not exist</translation>
    </message>
    <message>
        <source>The file/%1 does not exist</source>
        <translation>The file &quot;%1&quot; does not exist</translation>
    </message>
    <message>
        <source>new</source>
        <translation>New folder</translation>
    </message>
    <message>
        <source>rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>QZelFileDialogClass</name>
    <message>
        <source>QZelFileDialog</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>OpenSave</source>
        <translation>Open or save</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>MainPage</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>EncryptionOption</source>
        <translation>Password...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>QZelFileManagerWidget</name>
    <message>
        <source>WARN</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>Delete the selected entries?</translation>
    </message>
</context>
<context>
    <name>QZelFolderNameDialog</name>
    <message>
        <source>folderName</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>addFailed</source>
        <translation>Please enter a name</translation>
    </message>
</context>
<context>
    <name>QZelPwdInputDialog</name>
    <message>
        <source>solPwd</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>errPwdEmpty</source>
        <translation>Please enter the password</translation>
    </message>
</context>
</TS>
