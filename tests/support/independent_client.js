// What a client of somebody else's reads of cameras, and what it sets: independent_client.js DIRECTORY INVENTORY
// DIRECTORY has node_modules/onvif. Prints a JSON object for each camera.
'use strict';
const path = require('path');
const { Cam } = require(path.join(process.argv[2], 'node_modules', 'onvif'));
const { devices } = JSON.parse(require('fs').readFileSync(process.argv[3]));

const asked = (camera, method, ...values) => new Promise((resolve, reject) => {
    camera[method](...values, (error, answer) => (error ? reject(error) : resolve(answer)));
});

async function visit(device) {
    const seen = { id: device.id };
    try {
        const camera = new Cam({ hostname: device.ip, port: device.port, path: device.path, username: device.userName, password: device.password,
            timeout: 10000, autoconnect: false });
        await asked(camera, 'connect');
        seen.serial = (await asked(camera, 'getDeviceInformation')).serialNumber;
        const encoders = await asked(camera, 'getVideoEncoderConfigurations');
        seen.rates = encoders.map((encoder) => encoder.rateControl.bitrateLimit);
        seen.isMedia2 = Boolean(camera.media2Support);
        if (seen.isMedia2) { // what it sends to others does not follow the official schema
            encoders[0].rateControl.bitrateLimit = 1500;
            await asked(camera, 'setVideoEncoderConfiguration', encoders[0]);
            seen.token = encoders[0].$.token;
        }
    } catch (error) {
        seen.error = String(error);
    }
    console.log(JSON.stringify(seen));
}

(async () => {
    for (const device of devices)
        await visit(device);
})();
